#pragma once

#include <string>
#include <system_error>

#include "files/file_error.h"
#include "files/system_calls.h"

// The calls of `system_calls`. A call that a signal interrupts is made again.
namespace files::file_calls {

int open_to_read(const std::filesystem::path& path);
int open_to_write(const std::filesystem::path& path);
int open_new(const std::filesystem::path& path);
std::int64_t read_some(int file, std::byte* to, std::size_t count);
std::int64_t write_some(int file, const std::byte* from, std::size_t count);
std::int64_t seek_to(int file, std::int64_t offset);
int set_size(int file, std::int64_t size);
int facts_of(int file, file_facts& facts);
int facts_at(const std::filesystem::path& path, file_facts& facts);
int set_rights(int file, const file_facts& like);
int lock(int file);
int flush_to_disk(int file);
int close_file(int file);
int remove_file(const std::filesystem::path& path);
int replace(const std::filesystem::path& file, const std::filesystem::path& target);
int flush_folder(const std::filesystem::path& folder);
int list(const std::filesystem::path& folder, std::vector<listed_entry>& found);

// 1 if `path` leads to the file of that identity, 0 if to another one or to none.
int leads_to(const std::filesystem::path& path, const file_identity& identity);
// The same for an open file.
int is_at(int file, const std::filesystem::path& path);

// The errno number of an error that the standard library gives.
int errno_number(const std::error_code& reason);
// The forms layer's number for an errno number, and what it means in words.
file_error_number error_number(int errno_number);
std::string error_words(int errno_number);

// For what failed with a negative errno number: "C:\a.txt cannot be read: it is not there."
[[noreturn]] void fail(const std::string& path, const char* what, std::int64_t outcome);

}  // namespace files::file_calls
