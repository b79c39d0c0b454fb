#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "platform/file_error.h"

namespace platform {

struct listed_entry {
  std::filesystem::path::string_type name;
  bool is_hidden = false;  // the system does not list it by itself
  bool is_folder = false;  // it or what it leads to, if it is a link
  bool is_file = false;    // a normal one; so for a link too
};

}  // namespace platform

// The few calls to the system through which all files are read and written; one file per system
// carries them out. Each gives a negative number, an error of errno's numbering with its sign
// turned, if it fails.
namespace platform::file_calls {

// Only a normal file is opened; anything else (a folder, a device, a pipe) fails without waiting.
int open_to_read(const std::filesystem::path& place);
// Makes the file if it is missing and does not empty one that is there.
int open_to_write(const std::filesystem::path& place);
// Makes a file that must not be there yet.
int open_new(const std::filesystem::path& place);

// Bytes moved, 0 at the end of the file.
std::int64_t read_some(int file, std::byte* to, std::size_t count);
std::int64_t write_some(int file, const std::byte* from, std::size_t count);

// `offset` counts from the start of the file, in bytes; so does the size.
std::int64_t seek_to(int file, std::int64_t offset);
std::int64_t size_of(int file);
int flush_to_disk(int file);
int close_file(int file);

// Read-only or not; no folder.
int remove_file(const std::filesystem::path& place);
// Puts a whole file in the place of another, or under a name that is free, in one step.
int replace(const std::filesystem::path& file, const std::filesystem::path& target);
// What was renamed, made or deleted in the folder outlives a loss of power.
int flush_folder(const std::filesystem::path& folder);

// Puts what stands in the folder behind what was found before, in no order.
int list(const std::filesystem::path& folder, std::vector<listed_entry>& found);

// The errno number of an error that the standard library gives.
int errno_number(const std::error_code& reason);
// The forms layer's number for an errno number, and what it means in words.
file_error_number error_number(int errno_number);
std::string error_words(int errno_number);

}  // namespace platform::file_calls
