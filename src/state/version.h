#pragma once

namespace ostrane {

// The version as the tool writes it. The build reads it here for all else that bears one; where a
// version must be numbers, v2r1m0 is 2.1.0.
constexpr const char* version = "v2r1m0";

}  // namespace ostrane
