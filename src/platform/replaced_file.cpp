#include "platform/replaced_file.h"

#include <optional>
#include <vector>

#include "platform/case_blind.h"
#include "platform/code_page.h"
#include "platform/file_calls.h"
#include "platform/file_error.h"
#include "platform/paths.h"
#include "platform/system_name.h"

namespace platform {

namespace {

void require(int outcome, const std::string& path) {
  if (outcome >= 0) return;
  throw file_error{file_calls::error_number(-outcome),
                   path + " cannot be written: " + file_calls::error_words(-outcome) + "."};
}

std::string folded_name(const std::filesystem::path::string_type& system_name) {
  const std::optional<std::string> name = name_as_text(system_name);
  return name ? upper_case(*name) : std::string();
}

// Where names tell case apart, files of the same name in another case may lie beside `file`, which
// is there. They go, as the name means one file only.
void remove_other_cases(const std::filesystem::path& file) {
  const std::string folded = folded_name(file.filename().native());
  std::vector<listed_entry> listed;
  file_calls::list(file.parent_path(), listed);
  for (const listed_entry& entry : listed) {
    if (entry.is_folder || folded_name(entry.name) != folded) continue;
    const std::filesystem::path other = file.parent_path() / entry.name;
    std::error_code unknown;
    if (std::filesystem::equivalent(other, file, unknown) || unknown) continue;
    file_calls::remove_file(other);
  }
}

}  // namespace

replaced_file::replaced_file(const std::string& path) : path_(path), old_place_(system_path(path)) {
  const std::string whole = full_path(path);
  const std::filesystem::path folder = old_place_.parent_path();
  const std::string name = whole.substr(whole.rfind('\\') + 1);
  new_place_ = folder / system_name(name);
  written_ = folder / system_name("." + name + ".new");
  file_calls::remove_file(written_);
  file_.take_written(file_calls::open_new(written_), path);
}

replaced_file::~replaced_file() {
  if (in_place_) return;
  file_.abandon();
  file_calls::remove_file(written_);
}

// The old name is replaced before its case is changed: a sudden death between the two leaves one
// whole archive, and there never are two. From the replacement on nothing can be lost: a change of
// case that fails leaves the old spelling, which names compare equal to.
void replaced_file::put_in_place() {
  file_.flush(true);
  file_.close();
  require(file_calls::replace(written_, old_place_), path_);
  in_place_ = true;
  const bool new_case =
      old_place_ == new_place_ || file_calls::replace(old_place_, new_place_) >= 0;
  remove_other_cases(new_case ? new_place_ : old_place_);
  file_calls::flush_folder(new_place_.parent_path());
  forget_folders();
}

}  // namespace platform
