#include "files/whole_file.h"

#include <cerrno>
#include <utility>

#include "files/file_calls.h"
#include "files/hidden_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;

}  // namespace

void require_replaceable(const file_path& target, const file_identity& source) {
  std::error_code failed;
  const fs::file_status status = fs::symlink_status(target.system, failed);
  if (!fs::exists(status)) return;
  if (fs::is_directory(status)) file_calls::fail(target.shown, file_calls::cannot_write, -EISDIR);
  if (!fs::is_regular_file(status) && !fs::is_symlink(status)) {
    file_calls::fail(target.shown, file_calls::cannot_write, -EACCES);
  }
  if (!fs::is_regular_file(status)) return;
  file_info info;
  if (file_calls::info_at(target.system, info) >= 0 && info.stamp.identity == source) {
    throw file_error{file_error_number::permission_denied,
                     target.shown + file_calls::cannot_write + "it is the archive itself."};
  }
  const int old = file_calls::open_to_write(target.system);  // fails if it is read-only
  if (old < 0) file_calls::fail(target.shown, file_calls::cannot_write, old);
  file_calls::close_file(old);
}

whole_file::whole_file(binary_file& file, file_path target, const file_identity& source)
    : file_(file), target_(std::move(target)), written_(target_.system) {
  int made = file_calls::open_new(written_);
  if (made == -EEXIST) {
    require_replaceable(target_, source);
    written_ = temporary_beside(target_.system);
    file_info old;
    const bool replaces = file_calls::info_at(target_.system, old) >= 0 && old.is_file;
    made = file_calls::open_new(written_, replaces);
    if (made >= 0 && replaces) file_calls::copy_permissions(made, target_.system);
  }
  try {
    file_.adopt(made, target_.shown);
  } catch (...) {
    // adopt() can run out of memory before it owns the file.
    if (made >= 0) file_calls::close_file(made);
    if (made >= 0) file_calls::remove_file(written_);
    throw;
  }
  file_info info;
  if (file_calls::info_of(made, info) >= 0) identity_ = info.stamp.identity;
}

whole_file::~whole_file() {
  if (is_kept_) return;
  const bool drop = file_calls::may_be_same_file(written_, identity_);
  file_.abandon();
  if (drop) file_calls::remove_file(written_);
}

void whole_file::keep() {
  file_.close();
  if (written_ != target_.system) {
    const int replaced = file_calls::replace(written_, target_.system);
    if (replaced < 0) file_calls::fail(target_.shown, file_calls::cannot_write, replaced);
  }
  is_kept_ = true;
}

void write_whole_file(binary_file& file, const file_path& target, std::string_view bytes,
                      const file_identity& source) {
  whole_file to(file, target, source);
  file.write(std::as_bytes(std::span(bytes)));
  to.keep();
}

std::string read_whole_file(binary_file& file, const file_path& path) {
  file.open_to_read(path);
  std::string bytes(static_cast<std::size_t>(file.size()), '\0');
  bytes.resize(file.read(std::as_writable_bytes(std::span(bytes))));
  file.close();
  return bytes;
}

}  // namespace files
