#pragma once

#include <string>
#include <string_view>

#include "files/binary_file.h"

// The files that a command writes, as arguments name them. "-" is standard output.
namespace ostrane::command {

// True for an output that cannot be replaced: standard output under any name, a pipe or a character
// device.
bool is_stream(const std::string& argument);

// Opens a stream. A pipe waits for its reader. Returns false for any other output. Throws
// file_error, and interruption.
bool open_stream(const std::string& argument, files::binary_file& file);

// In a dry run, throws file_error if what is at the output must not be replaced.
void require_replaceable_in_dry_run(const std::string& argument);

// Writes to a stream, or replaces a file durably, after a report if the user wants one. Writes
// nothing in a dry run. Throws the same as both above.
void write_result(const std::string& argument, std::string_view bytes);

// True if both lead to the same file.
bool is_same_file(const std::string& output, const std::filesystem::path& input);

// Throws file_error if `output` leads to the file `input`.
void require_other_file(const std::string& output, const std::filesystem::path& input);

}  // namespace ostrane::command
