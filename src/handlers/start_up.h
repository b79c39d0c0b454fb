#pragma once

#include <filesystem>

namespace ostrane {

// Begins the tool as a new process does: all state at its start values, all forms as designed and
// wired, then start-up itself (the Load event of `Form1`), and `Form1` on the screen.
// `program_folder` is the folder of the running program.
void begin_tool(const std::filesystem::path& program_folder);

}  // namespace ostrane
