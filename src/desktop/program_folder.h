#pragma once

#include <filesystem>

namespace desktop {

// The folder of the program's file itself, where links to it lead. Needs a QCoreApplication.
std::filesystem::path program_folder();

}  // namespace desktop
