#pragma once

#include <filesystem>

namespace ostrane {

// Starts the tool as in a new process: resets the state and the forms, wires them, runs the Load
// event of `Form1` and shows `Form1`. `program_folder` is the folder of the running program.
void start_tool(const std::filesystem::path& program_folder);

}  // namespace ostrane
