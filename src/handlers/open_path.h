#pragma once

#include <filesystem>

// An archive that comes from outside: dropped on the main window or named on the command line.
namespace ostrane {

// True for a file ostrane.dat, in any case, and for a folder that holds one. `path` is a system
// path.
bool is_archive_path(const std::filesystem::path& path);

// Reads that archive as `Form2` does, which then shows its folder. Reports any other path.
void open_path(const std::filesystem::path& path);

// Reads the archive again that was read last, if there is one.
void read_archive_again();

}  // namespace ostrane
