#pragma once

#include <string>

namespace ostrane {

// Why an entry of this name must not become a file, as the end of a sentence, or "". Unsafe are
// names that would lead out of the folder, that mean a device, or that hold a control character.
std::string unsafe_name_reason(const std::string& name);

}  // namespace ostrane
