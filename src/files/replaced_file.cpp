#include "files/replaced_file.h"

#include <cerrno>
#include <optional>
#include <utility>
#include <vector>

#include "files/case_insensitive_lookup.h"
#include "files/code_page.h"
#include "files/file_calls.h"
#include "files/hidden_name.h"
#include "files/system_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;

constexpr int max_tries = 100;  // to find a free name

// A path without a folder lies in the current one.
fs::path folder_of(const fs::path& path) {
  const fs::path folder = path.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

std::string upper_case_name(const fs::path::string_type& system_name) {
  const std::optional<std::string> name = name_as_text(system_name);
  return name ? upper_case(*name) : std::string();
}

}  // namespace

replaced_file::replaced_file(file_path target)
    : target_(std::move(target)),
      folder_(folder_of(target_.system)),
      lock_(target_.system, target_.shown) {
  // Another copy of the tool may have changed the spelling before this one got the lock.
  target_.system = existing_spelling(target_.system);
  remove_leftovers();
  file_info old;
  const bool replaces = file_calls::info_at(target_.system, old) >= 0 && old.is_file;
  const bool is_private = replaces;  // until it has the permissions of the old file
  int file = -EEXIST;
  for (int tries = 0; file == -EEXIST && tries < max_tries; ++tries) {
    temporary_ = temporary_beside(target_.system);
    file = file_calls::open_new(temporary_, is_private);
  }
  try {
    file_.adopt(file, target_.shown);
    identity_ = file_.info().stamp.identity;
  } catch (...) {
    // adopt() can run out of memory before it owns the file.
    if (file >= 0) file_calls::remove_file(temporary_);
    if (file >= 0 && file_.handle() != file) file_calls::close_file(file);
    throw;
  }
  // If another copy gets past `lock_`, this lock keeps it from removing the file as a leftover.
  file_calls::lock(file);
  if (replaces) file_calls::copy_permissions(file, target_.system);
}

replaced_file::~replaced_file() {
  if (match(temporary_).is_same) file_calls::remove_file(temporary_);
  file_.abandon();
}

void replaced_file::remove_leftovers() const {
  std::vector<listed_entry> listed;
  const int status = file_calls::list(folder_, listed);
  if (status < 0) file_calls::fail(target_.shown, file_calls::cannot_write, status);
  for (const listed_entry& entry : listed) {
    if (!entry.is_file || !is_temporary_of(target_.system, entry.name)) continue;
    const fs::path leftover = folder_ / entry.name;
    const int file = file_calls::open_to_read(leftover);
    if (file < 0) continue;
    if (file_calls::lock(file) >= 0 && file_calls::match(leftover, file).is_same) {
      file_calls::remove_file(leftover);
    }
    file_calls::close_file(file);
  }
}

file_calls::path_match replaced_file::match(const fs::path& path) const {
  return file_calls::match(path, identity_);
}

void replaced_file::require_own_file() const {
  const file_calls::path_match found = match(temporary_);
  if (found.error < 0) file_calls::fail(target_.shown, file_calls::cannot_write, found.error);
  if (found.is_same) return;
  throw file_error{file_error_number::device_error, target_.shown + file_calls::cannot_write +
                                                        "another program has moved the new file."};
}

// A network file system can report a failure although it renamed the file, so the result is
// checked.
void replaced_file::commit(const std::function<void()>& before_rename) {
  file_.flush(true);
  require_own_file();
  before_rename();
  const int replaced = file_calls::replace(temporary_, target_.system);
  const file_calls::path_match found = match(target_.system);
  if (found.is_same || (found.error < 0 && replaced >= 0)) return;
  if (replaced < 0) file_calls::fail(target_.shown, file_calls::cannot_write, replaced);
  throw file_error{file_error_number::device_error,
                   target_.shown + file_calls::cannot_write + "another program has replaced it."};
}

void replaced_file::copy_to(binary_file& to) {
  binary_file new_file;
  new_file.open_to_read({temporary_, target_.shown});
  require_own_file();
  while (true) {
    const std::span<const std::byte> block = new_file.next(SIZE_MAX);
    if (block.empty()) break;
    to.write(block);
  }
}

void replaced_file::respell(const fs::path& target) {
  if (target != target_.system) file_calls::replace(target_.system, target);
  const fs::path& kept = match(target).is_same ? target : target_.system;
  // A name that the code page lacks has no other spelling.
  const std::string folded = upper_case_name(kept.filename().native());
  if (folded.empty()) return;
  std::vector<listed_entry> listed;
  file_calls::list(folder_, listed);
  for (const listed_entry& entry : listed) {
    if (entry.is_folder || entry.name == kept.filename().native()) continue;
    if (upper_case_name(entry.name) != folded || !match(kept).is_same) continue;
    const fs::path other = folder_ / entry.name;
    if (match(other).is_other()) file_calls::remove_file(other);
  }
}

void replaced_file::flush_folder() { file_calls::flush_folder(folder_); }

}  // namespace files
