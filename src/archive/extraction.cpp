#include "archive/extraction.h"

#include <algorithm>
#include <string>

#include "archive/chunk_ladder.h"
#include "archive/entry_bounds.h"
#include "archive/entry_file_name.h"
#include "archive/format.h"
#include "archive/passed_over.h"
#include "archive/progress.h"
#include "forms/form1.h"
#include "forms/form3.h"
#include "forms/form4.h"
#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/message_box.h"
#include "platform/paths.h"
#include "state/files.h"
#include "state/sign_column_text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t entries_a_bar_step = 49;

struct extraction {
  std::string target_folder;
  std::int64_t archive_position = 0;  // of the entry in work
  std::int16_t small_block_bytes = 0;
  std::int16_t total_bar_tick = 0;
  passed_over_entries passed_over;
};

void show_entry_in_work(const extraction& job, const std::string& name, std::int32_t index,
                        std::int32_t entry_size) {
  Form3.message.Caption =
      "Extracting file: " + job.target_folder + name +
      "\r\nFile number:     " + sign_column_text(index + 1) +
      "\r\nTotal number of files: " + sign_column_text(tool_state.record_count - 1);
  Form3.Refresh();
  Form3.ProgressBar1.Max = static_cast<float>(std::max(entry_size, 0));
  Form3.ProgressBar1.Min = 0;
}

// Closes the entry's file as it is and takes it away if it is new.
void drop_half_written(const std::string& path, bool is_new) {
  file_6.abandon();
  if (is_new) platform::delete_file(path);
}

// Gives why the entry was not written whole, or nothing. Throws file_error if the disk is full.
std::string write_entry(extraction& job, const std::string& path, std::int32_t entry_size) {
  bool is_new = false;
  try {
    is_new = file_6.open_to_write(path);
    if (!is_new && platform::is_same_file(path, tool_state.archive_path_copy)) {
      file_6.abandon();
      return "it would be written over the open archive";
    }
    const std::int32_t copied = chunk_ladder(file_5, file_6, entry_size, job.small_block_bytes);
    if (copied == entry_size) {
      file_6.close();
      return "";
    }
    drop_half_written(path, is_new);
    return "the archive ends before it does";
  } catch (const platform::file_error& error) {
    drop_half_written(path, is_new);
    if (error.number == platform::file_error_number::disk_full) throw;
    return error.text;
  }
}

void extract_entry(extraction& job, std::int32_t index) {
  const dat_record& record = tool_state.dat_index[static_cast<std::size_t>(index)];
  const dat_record& next = tool_state.dat_index[static_cast<std::size_t>(index) + 1];
  move_total_bar(job.total_bar_tick, entries_a_bar_step, static_cast<std::size_t>(index));
  const std::int32_t entry_size = in_32_bits(std::int64_t{next.offset} - record.offset);
  const std::string name = name_with_blanks(record.name);
  show_entry_in_work(job, name, index, entry_size);
  std::string fault =
      entry_size < 0 ? "the index gives it a size below 0" : fault_of_file_name(name);
  if (fault.empty()) fault = write_entry(job, job.target_folder + name, entry_size);
  job.archive_position += std::max(entry_size, 0);
  if (fault.empty()) return;
  pass_over(job.passed_over, name, fault);
  file_5.seek(job.archive_position);
}

void extract_entries(extraction& job) {
  job.archive_position = tool_state.dat_index[0].offset;
  if (tool_state.record_count > 1) file_5.seek(job.archive_position);
  Form3.ProgressBar2.Max = static_cast<float>(std::max(tool_state.record_count - 2, 0));
  Form3.ProgressBar2.Min = 0;
  for (std::int32_t index = 0; index <= tool_state.record_count - 2; ++index) {
    extract_entry(job, index);
  }
}

// Why nothing can be extracted at all, or nothing. Leaves the archive open.
std::string open_both_ends(const extraction& job) {
  if (Form1.List1.ListCount() != tool_state.record_count) {
    return "No archive is open. Read one first.";
  }
  if (!platform::folder_exists(job.target_folder)) {
    return "The folder " + job.target_folder + " is not there. Make it or choose another.";
  }
  if (tool_state.record_count > 1 && tool_state.dat_index[0].offset < 0) {
    return "The index of " + tool_state.archive_path_copy + " puts entries before the file.";
  }
  try {
    file_5.open_to_read(tool_state.archive_path_copy);
  } catch (const platform::file_error& error) {
    return error.text;
  }
  return "";
}

// Why the job stopped before its end, or nothing.
std::string run(extraction& job) {
  std::string stopped;
  try {
    extract_entries(job);
  } catch (const platform::file_error& error) {
    stopped = error.text;
  }
  file_5.close();
  return stopped;
}

}  // namespace

void extract_all_entries() {
  extraction job;
  job.target_folder = platform::with_separator(Form4.Text1.Text());
  const std::string fault = open_both_ends(job);
  if (!fault.empty()) {
    platform::message_box(fault + " Nothing was extracted.");
    return;
  }
  show_progress("Ostrane.dat tool - File Extraction");
  const std::string stopped = run(job);
  hide_progress("Ostrane.dat tool - ");
  tell_what_was_passed_over(job.passed_over);
  if (!stopped.empty()) {
    platform::message_box("The extraction was stopped. " + stopped);
    return;
  }
  platform::message_box("All files from Ostrane.dat has been extracted into: " + job.target_folder);
  Form4.Visible = false;
  Form1.Visible = true;
}

}  // namespace ostrane
