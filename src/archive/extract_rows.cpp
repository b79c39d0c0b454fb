#include "archive/extract_rows.h"

#include <algorithm>

#include "archive/skipped_files.h"
#include "data/extraction.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

extraction_result extract(const std::vector<std::int32_t>& rows,
                          const std::filesystem::path& folder) {
  files::clear_leftovers(folder);
  return extract_entries(tool_state.archive_file, index_records(),
                         [&folder](const std::string& name) {
                           return files::from_system_path(folder / files::system_name(name));
                         },
                         {},
                         {.is_wanted =
                              [&rows](std::size_t index) {
                                return std::binary_search(rows.begin(), rows.end(),
                                                          static_cast<std::int32_t>(index));
                              },
                          .entries_are_adjacent = false,
                          .rules = {.replaces = false}});
}

}  // namespace

std::string extract_rows(const std::vector<std::int32_t>& rows,
                         const std::filesystem::path& folder) {
  extraction_result result;
  std::string text = read_open_archive([&] { result = extract(rows, folder); });
  if (text.empty()) text = files::sentence_of(result.stopped);
  if (!text.empty()) text = "\n" + text + " The extraction was stopped.";
  text += skipped_files_text(result.skipped, "\nThese entries were not extracted:") +
          skipped_files_text(result.hidden, "\nThese files are hidden on this system:");
  return text.substr(text.empty() ? 0 : 1);
}

}  // namespace ostrane
