#include "command/named_files.h"

#include <cerrno>
#include <unordered_map>

#include "command/console.h"
#include "command/interruption.h"
#include "command/program.h"
#include "data/data_error.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/scratch_file.h"
#include "files/text.h"
#include "files/work_files.h"
#include "files/written_path.h"

namespace ostrane::command {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t input_block_size = 262144;

files::file_path copy_of_standard_input() {
  files::scratch_file copy(u8"standard input");
  std::vector<std::byte> block(input_block_size);
  std::int64_t size = 0;
  for (int count = 1; count != 0;) {
    check_interruption();
    count = read_input(block);
    if (count == -EINTR) continue;
    if (count < 0) files::fail(copy.path().shown, files::file_action::read, count);
    size += count;
    if (size > INT32_MAX) throw data_error(copy.path().shown, "has more than 2 GB.");
    copy.write(std::span(block).first(static_cast<std::size_t>(count)));
  }
  return copy.path();
}

}  // namespace

files::file_path named_file(const std::string& argument) {
  return {path_of_argument(argument), files::as_utf8(argument)};
}

files::file_path named_input(const std::string& argument) {
  return argument == "-" ? copy_of_standard_input() : named_file(argument);
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

void prepare_folder(const std::string& argument) {
  const fs::path folder = path_of_argument(argument);
  std::error_code failed;
  std::error_code unknown;
  if (is_dry_run() && !fs::exists(folder, unknown)) return;
  if (!fs::create_directories(folder, failed) && failed && !fs::exists(folder, unknown)) {
    files::fail(files::as_utf8(argument), files::file_action::create, -files::errno_number(failed));
  }
  require_folder(argument);
  if (!is_dry_run()) files::clear_leftovers(folder);
}

std::vector<bool> chosen_entries(std::span<const dat_record> records,
                                 const std::vector<std::string>& arguments) {
  const std::size_t count = entries_of(records).size();
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

}  // namespace ostrane::command
