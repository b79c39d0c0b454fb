#pragma once

#include <string>

namespace ostrane {

// Why no file may have this name, as a sentence fragment, or "". A name is unsafe if it leads out
// of the folder, names a device, or contains a control character.
std::string unsafe_name_reason(const std::string& name);

}  // namespace ostrane
