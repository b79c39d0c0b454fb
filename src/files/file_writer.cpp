#include "files/file_writer.h"

#include <cerrno>
#include <utility>
#include <vector>

#include "files/case_insensitive_lookup.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/path_match.h"
#include "files/system_name.h"
#include "files/work_files.h"

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

[[noreturn]] void fail_to_write(const file_path& target, const char* reason,
                                file_error_number number = file_error_number::device_error) {
  throw file_error(number, file_action::write, target.shown, reason);
}

// A file that nobody may write to is read-only; one that only this user must not is refused.
[[noreturn]] void fail_to_open(const file_path& target, file_action action, int status) {
  std::error_code failed;
  const fs::perms allowed = fs::status(for_system(target.system), failed).permissions();
  const fs::perms writing =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if (status == -EACCES && !failed && (allowed & writing) == fs::perms::none) {
    throw file_error(file_error_number::permission_denied, action, target.shown, "it is read-only");
  }
  fail(target.shown, action, status);
}

void require_other(const file_path& target, const file_identity& identity,
                   const write_rules& rules) {
  if (identity != rules.source || identity == file_identity{}) return;
  fail_to_write(target, "it is the open archive", file_error_number::permission_denied);
}

// `old` is what is at the target.
void require_replaceable(const file_path& target, const file_info& old, const write_rules& rules) {
  if (!rules.replaces) fail(target.shown, file_action::write, -EEXIST);
  require_other(target, old.stamp.identity, rules);
  if (old.is_link || (old.is_file && rules.replaces_read_only)) return;
  const int opened = system_calls.open_to_write(target.system);
  if (opened < 0) fail_to_open(target, file_action::write, opened);
  system_calls.close_file(opened);
}

}  // namespace

void require_writable(const file_path& target, const write_rules& rules) {
  file_info old;
  if (system_calls.info_at(target.system, old) >= 0) require_replaceable(target, old, rules);
}

file_writer::owned_file::~owned_file() {
  if (!is_owned) return;
  if (identity == file_identity{} || !match(path, identity).is_other()) {
    system_calls.remove_file(path);
  }
}

file_writer::file_writer(binary_file& file, file_path target, const write_rules& rules)
    : file_(file),
      target_(std::move(target)),
      spelling_(target_.system),
      folder_(folder_of(target_.system)),
      rules_(rules) {
  if (is_durable()) {
    lock_.emplace(target_.system, target_.shown);
    std::vector<listed_entry> listed;
    const int status = system_calls.list(folder_, listed);
    clear_leftovers(folder_, listed);
    if (rules_.is_only_spelling) {
      if (status < 0) fail(target_.shown, file_action::write, status);
      // Another copy may have changed the spelling before this one got the lock.
      target_.system = existing_spelling(target_.system);
    }
    create_beside();
    return;
  }
  const int created = create(target_.system, false);
  // Windows tells at once that the name is that of a folder.
  if ((created != -EEXIST && created != -EISDIR) || !rules_.replaces) {
    own(created);
  } else if (rules_.mode == write_mode::in_place) {
    overwrite();
  } else {
    create_beside();
  }
}

file_writer::~file_writer() {
  if (new_file_.is_owned) file_.abandon();
}

// After the file is created nothing allocates memory until it is owned.
int file_writer::create(fs::path path, bool is_private) {
  file_.prepare(target_.shown);
  new_file_.path = std::move(path);
  return system_calls.open_new(new_file_.path, is_private);
}

void file_writer::own(int created) {
  file_.adopt(created);
  new_file_.is_owned = true;
  new_file_.identity = file_.info().stamp.identity;
}

// The lock keeps other copies of the tool from removing the file as a leftover. One that has just
// begun to do so has locked or removed it.
void file_writer::create_beside() {
  file_info old;
  if (system_calls.info_at(target_.system, old) >= 0) require_replaceable(target_, old, rules_);
  const bool replaces = old.is_file;
  old_file_ = old.stamp.identity;
  for (int tries = 1;; ++tries) {
    const int created = create(temporary_beside(target_.system), replaces);
    if (created == -EEXIST && tries < max_tries) continue;
    own(created);
    const bool is_taken = system_calls.lock(created) == -EWOULDBLOCK ||
                          match(new_file_.path, new_file_.identity).is_other();
    if (!is_taken || tries == max_tries) break;
  }
  if (replaces) system_calls.copy_permissions(file_.handle(), target_.system);
}

void file_writer::overwrite() {
  const int opened = system_calls.open_to_write(target_.system);
  if (opened < 0) fail_to_open(target_, file_action::open, opened);
  file_.adopt(opened);
  is_new_ = false;
  old_file_ = file_.info().stamp.identity;
  new_file_.identity = old_file_;
  require_other(target_, old_file_, rules_);
}

void file_writer::keep(const std::function<void()>& last_check) {
  if (is_durable()) {
    file_.flush_to_disk();
  } else {
    file_.close();
  }
  if (last_check && is_new_) last_check();
  if (is_new_ && new_file_.path != target_.system) rename();
  new_file_.is_owned = false;
  file_.abandon();
  if (rules_.is_only_spelling) {
    ignore_failure([this] {
      restore_spelling();
      remove_other_spellings();
    });
  }
  if (is_durable()) system_calls.flush_folder(folder_);
}

// A network file system can report a failure although it renamed the file, or a success although it
// did not. On FAT a rename changes the identity, which an open file then tells.
void file_writer::rename() {
  const path_match written = match(new_file_.path, new_file_.identity);
  if (written.error < 0) fail(target_.shown, file_action::write, written.error);
  if (!written.is_same) fail_to_write(target_, "another program has moved the new file");
  const int watched = system_calls.open_to_read(new_file_.path);
  const int renamed = system_calls.replace(new_file_.path, target_.system);
  path_match found = match(target_.system, new_file_.identity);
  file_info now;
  if (found.is_other() && watched >= 0 && system_calls.info_of(watched, now) >= 0) {
    new_file_.identity = now.stamp.identity;
    found = match(target_.system, new_file_.identity);
  }
  if (watched >= 0) system_calls.close_file(watched);
  if (found.is_same || (found.error < 0 && renamed >= 0)) return;
  if (renamed < 0) fail(target_.shown, file_action::replace, renamed);
  fail_to_write(target_, "another program has replaced it");
}

// The rename kept the spelling of the old file, so there never are two files. A failure is harmless
// now, as the names are compared case-insensitively.
void file_writer::restore_spelling() {
  if (spelling_ != target_.system) system_calls.replace(target_.system, spelling_);
  if (match(spelling_, new_file_.identity).is_same) target_.system = spelling_;
}

void file_writer::remove_other_spellings() {
  const fs::path::string_type name = target_.system.filename().native();
  const std::string folded = upper_case_name(name);
  if (folded.empty()) return;  // a name that the code page lacks has no other spelling
  std::vector<listed_entry> listed;
  system_calls.list(folder_, listed);
  for (const listed_entry& entry : listed) {
    if (entry.is_folder || entry.name == name || upper_case_name(entry.name) != folded) continue;
    if (!match(target_.system, new_file_.identity).is_same) continue;
    const fs::path other = folder_ / entry.name;
    if (match(other, new_file_.identity).is_other()) system_calls.remove_file(other);
  }
}

void write_bytes(binary_file& file, const file_path& target, std::string_view bytes,
                 const write_rules& rules) {
  file_writer to(file, target, rules);
  file.write(std::as_bytes(std::span(bytes)));
  to.keep();
}

}  // namespace files
