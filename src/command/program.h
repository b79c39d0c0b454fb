#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

// System-dependent parts of the program.
namespace ostrane::command {

// Returns the arguments without the program's name: UTF-8 on Windows, raw bytes on POSIX.
std::vector<std::string> arguments_of(int argc, char** argv);

std::filesystem::path path_of_argument(const std::string& argument);

bool stderr_is_terminal();

// On Windows turns off the translation of line ends, and shows UTF-8.
void set_up_standard_streams();

// Duplicates the descriptor of standard output. Returns -errno on failure.
int open_standard_output();

// True if the path leads to the file, pipe or device that is standard output.
bool is_standard_output(const std::filesystem::path& path);

// Opens a pipe or a device to write. A pipe waits for its reader. Returns -errno on failure; throws
// interruption.
int open_pipe(const std::filesystem::path& path);

// Reads from standard input. Returns the number of bytes, 0 at its end, or -errno on failure.
int read_input(std::span<std::byte> to);

}  // namespace ostrane::command
