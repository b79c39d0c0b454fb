#pragma once

namespace ostrane {

// The version as the tool shows it. The build reads it from here for the package and the documents;
// where a version must be numeric, v2r1m0 is 2.1.0.
constexpr const char* version = "v2r1m0";

}  // namespace ostrane
