#pragma once

#include <string>

namespace ostrane {

// Returns the reason why an entry of this name is unsafe as a file (a sentence fragment), or "".
// These names are unsafe: empty names, folder and device names, and names with a path separator or
// a control character.
std::string unsafe_name_reason(const std::string& name);

}  // namespace ostrane
