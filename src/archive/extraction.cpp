#include "archive/extraction.h"

#include <algorithm>
#include <string>

#include "archive/chunk_ladder.h"
#include "archive/entry_bounds.h"
#include "archive/entry_file_name.h"
#include "archive/format.h"
#include "archive/open_archive.h"
#include "archive/progress.h"
#include "archive/skipped_files.h"
#include "files/failure.h"
#include "files/file_calls.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "forms/form1.h"
#include "forms/form3.h"
#include "forms/form4.h"
#include "forms_layer/message_box.h"
#include "state/files.h"
#include "state/sign_column_text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t entries_per_bar_step = 49;

struct extraction {
  std::string target_folder;
  files::case_insensitive_lookup names;
  files::file_stamp archive;
  std::int64_t archive_position = 0;  // of the current entry
  std::int16_t small_block_bytes = 0;
  std::int16_t total_bar_tick = 0;
  std::int32_t written = 0;
  skipped_files skipped;
  skipped_files hidden;
};

void show_current_entry(const extraction& job, const std::string& name, std::int32_t index,
                        std::int32_t entry_size) {
  Form3.message.Caption =
      "Extracting file: " + job.target_folder + name +
      "\r\nFile number:     " + sign_column_text(index + 1) +
      "\r\nTotal number of files: " + sign_column_text(tool_state.record_count - 1);
  Form3.Refresh();
  Form3.ProgressBar1.Max = static_cast<float>(std::max(entry_size, 0));
  Form3.ProgressBar1.Min = 0;
}

// The file of an entry, in file 6. If it is new it is removed unless it was written whole.
struct entry_file {
  files::file_path path;
  bool is_new = false;
  bool is_whole = false;

  explicit entry_file(files::file_path at) : path(std::move(at)) {
    is_new = file_6.open_to_write(path);
  }
  entry_file(const entry_file&) = delete;
  entry_file& operator=(const entry_file&) = delete;
  ~entry_file() {
    if (is_whole) return;
    const bool drop = is_new && files::file_calls::is_at(file_6.handle(), path.system) != 0;
    file_6.abandon();
    if (drop) files::file_calls::remove_file(path.system);
  }
};

// Returns why the entry was not written, or "". Throws file_error.
std::string write_entry(extraction& job, const std::string& path, std::int32_t entry_size) {
  entry_file file(files::on_drives(path, job.names));
  if (file.is_new) job.names.add(file.path.system);
  if (!file.is_new && file_6.facts().stamp.identity == job.archive.identity) {
    return "it would be written over the open archive";
  }
  file_5.seek(job.archive_position);
  const std::int32_t copied = chunk_ladder(file_5, file_6, entry_size, job.small_block_bytes);
  if (copied < entry_size) return "the archive ends before it does";
  file_6.close();
  file.is_whole = true;
  return "";
}

// Why the entry cannot be written, before its file is touched, or "".
std::string reason_to_skip(const extraction& job, const std::string& name,
                           std::int32_t entry_size) {
  if (entry_size < 0) return "the index gives it a size below 0";
  std::string reason = unsafe_name_reason(name);
  if (reason.empty() && job.archive_position + entry_size > job.archive.size) {
    reason = "the archive ends before it does";
  }
  return reason;
}

// A full disk stops the job; any other failure skips the entry.
std::string try_to_write_entry(extraction& job, const std::string& name, std::int32_t entry_size) {
  std::string reason = reason_to_skip(job, name, entry_size);
  if (!reason.empty()) return reason;
  try {
    return write_entry(job, job.target_folder + name, entry_size);
  } catch (const files::file_error& error) {
    if (error.number == files::file_error_number::disk_full) throw;
    return error.text;
  }
}

void extract_entry(extraction& job, std::int32_t index) {
  const dat_record& record = tool_state.dat_index[static_cast<std::size_t>(index)];
  const dat_record& next = tool_state.dat_index[static_cast<std::size_t>(index) + 1];
  move_total_bar(job.total_bar_tick, entries_per_bar_step, static_cast<std::size_t>(index));
  const std::int32_t entry_size = in_32_bits(std::int64_t{next.offset} - record.offset);
  const std::string name = name_with_blanks(record.name);
  show_current_entry(job, name, index, entry_size);
  const std::string reason = try_to_write_entry(job, name, entry_size);
  job.archive_position += std::max(entry_size, 0);
  if (!reason.empty()) {
    add_skipped(job.skipped, name, reason);
    return;
  }
  ++job.written;
  if (name.front() == '.') add_skipped(job.hidden, name, "its name begins with a dot");
}

void extract_entries(extraction& job) {
  job.archive_position = tool_state.dat_index[0].offset;
  Form3.ProgressBar2.Max = static_cast<float>(std::max(tool_state.record_count - 2, 0));
  Form3.ProgressBar2.Min = 0;
  for (std::int32_t index = 0; index <= tool_state.record_count - 2; ++index) {
    extract_entry(job, index);
  }
}

// Opens the archive as file 5. Returns why nothing can be extracted at all, or "".
std::string open_both_ends(extraction& job) {
  if (!files::folder_exists(job.target_folder)) {
    return "The folder " + job.target_folder + " is not there. Make it or choose another.";
  }
  if (tool_state.record_count > 1 && tool_state.dat_index[0].offset < 0) {
    return "The index of " + tool_state.archive_path_copy + " puts entries before the file.";
  }
  return files::failure_of([&] {
    open_archive_file(file_5);
    job.archive = file_5.facts().stamp;
  });
}

std::string closing_text(const extraction& job, const std::string& stopped) {
  std::string text;
  if (!stopped.empty()) {
    text = "The extraction was stopped. " + stopped;
  } else if (job.skipped.count == 0) {
    text = "All files from Ostrane.dat has been extracted into: " + job.target_folder;
  } else {
    text = std::to_string(job.written) + " of " + std::to_string(tool_state.record_count - 1) +
           " files from Ostrane.dat has been extracted into: " + job.target_folder;
  }
  return text + text_of(job.skipped, "\nThese entries were not extracted:") +
         text_of(job.hidden, "\nThese files are hidden on this system:");
}

}  // namespace

void extract_all_entries() {
  extraction job;
  job.target_folder = files::with_separator(Form4.Text1.Text());
  const std::string fault = open_both_ends(job);
  if (!fault.empty()) {
    file_5.close();
    forms_layer::message_box(fault + " Nothing was extracted.");
    return;
  }
  show_progress("Ostrane.dat tool - File Extraction");
  const std::string stopped = files::failure_of([&] { extract_entries(job); });
  file_5.close();
  hide_progress("Ostrane.dat tool - ");
  forms_layer::message_box(closing_text(job, stopped));
  const bool none_written = job.skipped.count > 0 && job.written == 0;
  if (!stopped.empty() || none_written) return;
  Form4.Visible = false;
  Form1.Visible = true;
}

}  // namespace ostrane
