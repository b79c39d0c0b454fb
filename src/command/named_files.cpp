#include "command/named_files.h"

#include <cerrno>

#include "command/console.h"
#include "command/program.h"
#include "data/data_error.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/file_writer.h"
#include "files/text.h"
#include "files/work_files.h"
#include "files/written_path.h"

namespace ostrane::command {

namespace fs = std::filesystem;

files::file_path named_file(const std::string& argument) {
  return {path_of_argument(argument), files::as_utf8(argument)};
}

files::file_path shown_as_named(const fs::path& path) { return {path, path.u8string()}; }

files::file_path named_link_target(const std::string& argument) {
  files::file_path path = named_file(argument);
  std::error_code failed;
  const fs::path target = fs::canonical(path.system, failed);
  if (!failed) path.system = target;
  return path;
}

files::file_path file_in(const std::string& folder, const std::string& name,
                         files::case_insensitive_lookup& names) {
  return shown_as_named(names.find(path_of_argument(folder), name));
}

void require_folder(const std::string& argument) {
  std::error_code failed;
  const fs::file_status status = fs::status(path_of_argument(argument), failed);
  if (fs::is_directory(status)) return;
  const int reason = fs::exists(status) ? ENOTDIR : files::errno_number(failed);
  if (reason == ENOTDIR) throw data_error(files::as_utf8(argument), "is not a folder.");
  files::fail(files::as_utf8(argument), files::file_action::open, reason == 0 ? -ENOENT : -reason);
}

void make_folder(const std::string& argument) {
  const fs::path folder = path_of_argument(argument);
  std::error_code failed;
  std::error_code unknown;
  if (!fs::create_directory(folder, failed) && failed && !fs::exists(folder, unknown)) {
    files::fail(files::as_utf8(argument), files::file_action::create, -files::errno_number(failed));
  }
  require_folder(argument);
  files::clear_leftovers(folder);
}

std::vector<bool> chosen_entries(std::span<const dat_record> records,
                                 const std::vector<std::string>& arguments) {
  const std::size_t count = records.empty() ? 0 : records.size() - 1;
  std::vector<bool> chosen(count, arguments.empty());
  for (const std::string& argument : arguments) {
    bool matches_any = false;
    const std::optional<std::string> pattern = files::from_utf8(files::as_utf8(argument));
    for (std::size_t i = 0; pattern && i < count; ++i) {
      if (!files::matches_pattern(name_with_blanks(records[i].name), *pattern)) continue;
      chosen[i] = matches_any = true;
    }
    if (!matches_any) throw data_error(files::as_utf8(argument), "no entry has this name.");
  }
  return chosen;
}

void open_output(files::binary_file& file) {
  flush_output();
  file.prepare(u8"standard output");
  file.adopt(open_standard_output());
}

void write_result(const std::string& argument, std::string_view bytes) {
  if (argument == "-") {
    print(bytes);
    return;
  }
  files::binary_file file;
  files::write_bytes(file, named_link_target(argument), bytes,
                     {.mode = files::write_mode::durable});
}

void require_other_file(const std::string& output, const std::string& input) {
  if (output == "-") return;
  const files::file_path path = named_file(output);
  std::error_code failed;
  if (!std::filesystem::equivalent(files::written_path(path.system), path_of_argument(input),
                                   failed)) {
    return;
  }
  throw files::file_error(files::file_error_number::permission_denied, files::file_action::write,
                          path.shown, "it is read by this command");
}

}  // namespace ostrane::command
