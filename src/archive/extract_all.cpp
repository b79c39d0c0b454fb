#include "archive/extract_all.h"

#include <algorithm>
#include <string>

#include "archive/skipped_files.h"
#include "data/extraction.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/work_files.h"
#include "forms/form1.h"
#include "forms/form4.h"
#include "forms_layer/message_box.h"
#include "progress/progress.h"
#include "state/open_archive.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t entries_per_bar_step = 49;

struct extraction_job {
  std::string folder;  // tool path, ends in "\\"
  std::filesystem::path system_folder = {};
  files::case_insensitive_lookup names = {};
};

// Removes leftovers from the folder and opens the archive. Returns why nothing can be extracted, or
// "".
std::string prepare_extraction(extraction_job& job) {
  if (!files::folder_exists(job.folder)) {
    return "The folder " + job.folder + " is not there. Make it or choose another.";
  }
  if (tool_state.record_count > 1 && tool_state.dat_index[0].offset < 0) {
    return "The index of " + tool_state.archive_path_copy + " puts entries before the file.";
  }
  return files::failure_of([&job] {
    job.system_folder = files::system_path(job.folder, job.names);
    files::clear_leftovers(job.system_folder);
    open_archive_file();
  });
}

void show_current_entry(const std::string& path, std::size_t index) {
  show_progress_text("Extracting file: " + path + "\r\nFile number:     " +
                     sign_column_text(static_cast<std::int64_t>(index) + 1) +
                     "\r\nTotal number of files: " + sign_column_text(tool_state.record_count - 1));
}

extraction_result extract(extraction_job& job) {
  std::int16_t total_bar_tick = 0;
  set_total_range(std::max(tool_state.record_count - 2, 0));
  return extract_entries(tool_state.archive_file, index_records(),
                         [&](const std::string& name) {
                           return files::file_path{job.names.find(job.system_folder, name),
                                                   files::to_utf8(job.folder + name)};
                         },
                         {.on_file =
                              [&](std::size_t index, const std::string& name, std::int32_t size) {
                                advance_total_bar(total_bar_tick, entries_per_bar_step, index);
                                show_current_entry(job.folder + name, index);
                                set_file_range(std::max(size, 0));
                              },
                          .on_bytes = move_file_bar});
}

std::string result_message(const extraction_result& result, const std::string& target_folder) {
  const std::string count =
      std::to_string(result.written) + " of " + std::to_string(tool_state.record_count - 1);
  const bool is_all = !result.stopped && result.skipped.empty();
  std::string text = (is_all ? "All" : count) +
                     " files from Ostrane.dat has been extracted into: " + target_folder;
  if (result.stopped) {
    text += "\nThe extraction was stopped. " + files::sentence_of(result.stopped);
  }
  return text + skipped_files_text(result.skipped, "\nThese entries were not extracted:") +
         skipped_files_text(result.hidden, "\nThese files are hidden on this system:");
}

}  // namespace

void extract_all_entries() {
  extraction_job job = {.folder = files::with_separator(Form4.Text1.Text())};
  const std::string failure = prepare_extraction(job);
  if (!failure.empty()) {
    tool_state.archive_file.close();
    return forms_layer::message_box(failure + " Nothing was extracted.");
  }
  show_progress("Ostrane.dat tool - File Extraction");
  const extraction_result result = extract(job);
  tool_state.archive_file.close();
  hide_progress("Ostrane.dat tool - ");
  forms_layer::message_box(result_message(result, job.folder));
  const bool none_written = !result.skipped.empty() && result.written == 0;
  if (result.stopped || none_written) return;
  Form4.Visible = false;
  Form1.Visible = true;
}

}  // namespace ostrane
