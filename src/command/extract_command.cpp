#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/program.h"
#include "data/extraction.h"
#include "files/code_page.h"

namespace ostrane::command {

namespace {

int report_skipped_entries(const extraction_result& result) {
  for (const skipped_file& entry : result.skipped) {
    print_error({files::to_utf8(entry.name), "not extracted: " + entry.reason});
  }
  if (result.stopped) {
    print_error(result.stopped);
    return status_failed;
  }
  return result.skipped.empty() ? status_done : status_differs;
}

}  // namespace

int extract(const extract_options& options) {
  const files::file_path archive = named_file(options.archive);
  const archive_index index = read_archive_index(archive);
  const std::vector<bool> chosen = chosen_entries(index.records, options.names);
  make_folder(options.folder);
  files::binary_file file;
  open_unchanged(file, archive, index.stamp);
  files::case_insensitive_lookup names;
  const extraction_result result =
      extract_entries(file, index.records,
                      [&](const std::string& name) { return file_in(options.folder, name, names); },
                      shown_progress(index.records.size()),
                      {.is_wanted = [&chosen](std::size_t number) { return chosen[number]; },
                       .entries_are_adjacent = false,
                       .replaces_atomically = true});
  return report_skipped_entries(result);
}

}  // namespace ostrane::command
