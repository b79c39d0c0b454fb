#include "archive/extract_rows.h"

#include <algorithm>
#include <system_error>

#include "archive/skipped_files.h"
#include "data/entry_file_name.h"
#include "data/extraction.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

struct rows_job {
  const std::vector<std::int32_t>& rows;
  const std::filesystem::path& folder;
  std::vector<skipped_file> kept = {};
};

// An unsafe name is left to the extraction, which refuses it.
bool is_wanted(rows_job& job, std::size_t index) {
  const auto row = static_cast<std::int32_t>(index);
  if (!std::binary_search(job.rows.begin(), job.rows.end(), row)) return false;
  const std::string name = entry_name(row);
  std::error_code failed;
  const bool exists = unsafe_name_reason(name).empty() &&
                      std::filesystem::exists(job.folder / files::system_name(name), failed);
  if (exists) job.kept.push_back({name, "the folder holds a file of this name"});
  return !exists;
}

extraction_result extract(rows_job& job) {
  files::clear_leftovers(job.folder);
  return extract_entries(tool_state.archive_file, index_records(),
                         [&job](const std::string& name) {
                           return files::from_system_path(job.folder / files::system_name(name));
                         },
                         {},
                         {.is_wanted = [&job](std::size_t index) { return is_wanted(job, index); },
                          .entries_are_adjacent = false,
                          .replaces_atomically = true});
}

}  // namespace

std::string extract_rows(const std::vector<std::int32_t>& rows,
                         const std::filesystem::path& folder) {
  rows_job job = {rows, folder};
  extraction_result result;
  std::string text = read_open_archive([&] { result = extract(job); });
  if (text.empty()) text = files::sentence_of(result.stopped);
  job.kept.insert(job.kept.end(), result.skipped.begin(), result.skipped.end());
  if (!text.empty()) text += " The extraction was stopped.\n";
  text += skipped_files_text(job.kept, "These entries were not extracted:");
  return text;
}

}  // namespace ostrane
