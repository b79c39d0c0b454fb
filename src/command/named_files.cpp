#include "command/named_files.h"

#include <cerrno>
#include <unordered_map>

#include "command/console.h"
#include "command/interruption.h"
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
  return {files::written_path(path_of_argument(argument)), files::as_utf8(argument)};
}

bool has_other_names(const fs::path& file) {
  std::error_code failed;
  const bool is_file = fs::is_regular_file(fs::symlink_status(file, failed));
  return is_file && fs::hard_link_count(file, failed) > 1 && !failed;
}

void note_other_names(const files::file_path& archive) {
  print_note({archive.shown, "its other names (hard links) keep the old archive"});
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
  const std::string no_name(name_size + 1, '/');  // is longer than that of any entry
  std::unordered_multimap<std::string, std::size_t> by_name;
  for (std::size_t i = 0; i < count && !arguments.empty(); ++i) {
    by_name.emplace(files::upper_case(name_with_blanks(records[i].name)), i);
  }
  for (const std::string& argument : arguments) {
    show_progress(static_cast<std::size_t>(&argument - arguments.data()), arguments.size(), "");
    const std::u8string subject = files::as_utf8(argument);
    const std::string pattern = files::from_utf8(subject).value_or(no_name);
    const bool is_name = pattern.find_first_of("*?") == std::string::npos;
    auto [at, end] = is_name ? by_name.equal_range(files::upper_case(pattern))
                             : std::pair(by_name.begin(), by_name.end());
    bool matches_any = false;
    for (; at != end; ++at) {
      check_interruption();
      if (!is_name && !files::matches_pattern(at->first, pattern)) continue;
      chosen[at->second] = matches_any = true;
    }
    if (!matches_any) throw data_error(subject, "no entry has this name.");
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
  const files::file_path path = named_link_target(output);
  std::error_code failed;
  if (!fs::equivalent(path.system, path_of_argument(input), failed)) return;
  throw files::file_error(files::file_error_number::permission_denied, files::file_action::write,
                          path.shown, "it is read by this command");
}

}  // namespace ostrane::command
