#pragma once

#include <filesystem>

#include "data/icon_export.h"

namespace ostrane {

// Starts the tool as in a new process: resets the state and the forms, wires them, runs the Load
// event of `Form1` and shows `Form1`. `program_folder` is the folder of the running program.
// Without an exporter no pictures can be saved. Reads the archive at `opened`, a system path, if it
// is not empty.
void start_tool(const std::filesystem::path& program_folder, icon_exporter exporter = nullptr,
                const std::filesystem::path& opened = {});

}  // namespace ostrane
