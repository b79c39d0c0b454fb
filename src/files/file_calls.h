#pragma once

#include <string>
#include <system_error>

#include "files/file_error.h"
#include "files/system_calls.h"

// The calls of `system_calls`, retried after EINTR.
namespace files::file_calls {

int open_to_read(const std::filesystem::path& path);
int open_to_write(const std::filesystem::path& path);
int open_new(const std::filesystem::path& path, bool is_private = false);
int open_lock(const std::filesystem::path& path);
std::int64_t read_some(int file, std::byte* to, std::size_t count);
std::int64_t write_some(int file, const std::byte* from, std::size_t count);
std::int64_t seek_to(int file, std::int64_t offset);
int set_size(int file, std::int64_t size);
int info_of(int file, file_info& info);
int info_at(const std::filesystem::path& path, file_info& info);
int copy_permissions(int file, const std::filesystem::path& from);
int lock(int file);
int flush_to_disk(int file);
int close_file(int file);
int remove_file(const std::filesystem::path& path);
int replace(const std::filesystem::path& file, const std::filesystem::path& target);
int flush_folder(const std::filesystem::path& folder);
int list(const std::filesystem::path& folder, std::vector<listed_entry>& found);

// Whether a path names a certain file.
struct path_match {
  bool is_same = false;
  int error = 0;  // why it is unknown, a negative errno number

  bool is_other() const { return !is_same && error == 0; }  // another file or none
};
path_match match(const std::filesystem::path& path, const file_identity& identity);
path_match match(const std::filesystem::path& path, int file);

// True unless `path` is known to name another file or none. A zero identity is unknown.
bool may_be_same_file(const std::filesystem::path& path, const file_identity& identity);

// The errno number of an error of the standard library.
int errno_number(const std::error_code& reason);
// The number that file_error reports for an errno number, and the reason as a sentence fragment.
file_error_number error_number(int errno_number);
std::string error_text(int errno_number);

// Throws file_error for `status`, a negative errno number. `what` is " cannot be read: " or the
// like; the text becomes "C:\a.txt cannot be read: it is not there."
[[noreturn]] void fail(const std::string& path, const char* what, std::int64_t status);
constexpr const char* cannot_write = " cannot be written: ";

}  // namespace files::file_calls
