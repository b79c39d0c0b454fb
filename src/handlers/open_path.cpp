#include "handlers/open_path.h"

#include <string>
#include <system_error>

#include "archive/index_reader.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "forms/form2.h"
#include "forms_layer/message_box.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

namespace fs = std::filesystem;

const std::string archive_file_name = "ostrane.dat";

fs::path absolute_path(const fs::path& path) {
  std::error_code failed;
  const fs::path whole = fs::absolute(path, failed).lexically_normal();
  return whole.has_filename() ? whole : whole.parent_path();
}

// The tool path of the folder of the archive, or "".
std::string folder_of_archive(const fs::path& path) {
  const fs::path whole = absolute_path(path);
  std::error_code failed;
  const bool is_folder = fs::is_directory(whole, failed);
  const std::string name = files::as_bytes(whole.filename().u8string());
  if (!is_folder && !is_archive_name(name)) return "";
  const std::string folder = files::to_tool_path(is_folder ? whole : whole.parent_path());
  if (folder.empty()) return "";
  return files::file_exists(files::with_separator(folder) + archive_file_name) ? folder : "";
}

}  // namespace

bool is_archive_path(const fs::path& path) { return !folder_of_archive(path).empty(); }

void open_path(const fs::path& path) {
  const std::string folder = folder_of_archive(path);
  if (folder.empty()) {
    return forms_layer::message_box(
        files::from_utf8_lossy(files::from_system_path(absolute_path(path)).shown) +
        " is no ostrane.dat, and no folder that holds one.");
  }
  // The archive can be read even if the other files of its folder cannot be listed.
  files::ignore_failure([&folder] { Form2.Dir1.Path = folder; });
  read_archive(folder);
}

void read_archive_again() {
  const std::string& path = tool_state.archive_path;
  if (!path.empty()) read_archive(path.substr(0, path.rfind('\\')));
}

}  // namespace ostrane
