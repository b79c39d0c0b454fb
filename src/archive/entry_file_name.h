#pragma once

#include <string>

namespace ostrane {

// Why an entry of this name cannot become a file in a folder, as the end of a sentence; empty if it
// can. Refused are names that would lead out of the folder or that mean a device.
std::string fault_of_file_name(const std::string& name);

}  // namespace ostrane
