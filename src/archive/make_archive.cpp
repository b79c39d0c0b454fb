#include "archive/make_archive.h"

#include <algorithm>
#include <utility>

#include "archive/index_reader.h"
#include "archive/skipped_files.h"
#include "data/archive_builder.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_error.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "forms/form1.h"
#include "forms/form5.h"
#include "forms_layer/message_box.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t files_per_bar_step = 97;

struct build_job {
  std::string folder;  // tool path, ends in "\\"
  build_list list;
  files::case_insensitive_lookup names;
  std::vector<dat_record> records;
  bool is_made = false;
  std::string skipped;  // a message, or ""
};

// The rows of `File1` without the archive itself.
std::vector<std::string> listed_files() {
  std::vector<std::string> names;
  for (std::int32_t i = 0; i < Form5.File1.ListCount(); ++i) {
    const std::string& name = Form5.File1.List(i);
    if (files::lower_case(name) != "ostrane.dat") names.push_back(name);
  }
  return names;
}

void set_paths(build_job& job, bool in_any_case) {
  const std::filesystem::path folder = files::system_path(job.folder, job.names);
  job.list.paths.clear();
  for (const std::string& name : job.list.names) {
    const std::filesystem::path path =
        in_any_case ? job.names.find(folder, name) : folder / files::system_name(name);
    job.list.paths.push_back({path, files::to_utf8(job.folder + name)});
  }
}

std::vector<dat_record> measure(build_job& job) {
  set_paths(job, false);
  try {
    return measure_files(job.list, tool_state.make_index);
  } catch (const files::file_error& error) {
    if (error.number != files::file_error_number::file_not_found) throw;
  }
  // If the list is that of another folder, the files here may be spelled differently.
  set_paths(job, true);
  return measure_files(job.list, tool_state.make_index);
}

void show_current_file(const build_job& job, std::size_t index, const std::string& name) {
  const auto count = static_cast<std::int64_t>(job.list.names.size());
  show_progress_text("Current File : " + job.folder + name + "\r\nCurrent File Number: " +
                     sign_column_text(static_cast<std::int64_t>(index)) +
                     "\r\nTotal Number of Files: " + sign_column_text(count));
}

void write(build_job& job) {
  std::int16_t total_bar_tick = 0;
  set_total_range(static_cast<std::int64_t>(job.records.size()));
  // Always in upper case, whatever the old archive is called: respell() renames it so.
  const files::file_path target = {
      files::system_path(job.folder, job.names) / files::system_name(archive_name),
      files::to_utf8(job.folder + archive_name)};
  write_archive(job.list, tool_state.make_index, job.records, target,
                {.on_file =
                     [&](std::size_t index, const std::string& name, std::int32_t size) {
                       move_total_bar(total_bar_tick, files_per_bar_step, index);
                       set_file_range(size);
                       show_current_file(job, index, name);
                     },
                 .on_bytes = move_file_bar});
}

std::string skipped_message(const build_job& job) {
  std::vector<skipped_file> skipped;
  for (const files::unlisted_file& file : files::unlisted_files_in(job.folder, job.list.names)) {
    if (files::upper_case(file.name) != archive_name) skipped.push_back({file.name, file.reason});
  }
  return skipped_files_text(skipped, "These files are not in the new Ostrane.dat:");
}

void run(build_job& job) {
  show_progress_text("Calculation internal offsets for the files in Ostrane.dat");
  job.list.names = listed_files();
  job.records = measure(job);
  refresh_progress();
  write(job);
  job.is_made = true;
  job.skipped = skipped_message(job);
}

// A hint for a typed path that is not the folder of the listed files, or "".
std::string folder_hint(const build_job& job) {
  const std::string listed = Form5.File1.Path();
  const std::string target = files::full_path(job.folder);
  if (files::lower_case(listed) == files::lower_case(target)) return "";
  return " The list shows the files of " + listed + ". Double click on the folder to build from.";
}

// An open archive is replaced by the new one, as dat_index and List1 must describe the same file.
// If none is open, none is opened; only the index is stored.
void use_new_index(const build_job& job) {
  if (tool_state.archive_is_open == flag_true) {
    read_archive(job.folder);
    return;
  }
  tool_state.record_count = static_cast<std::int32_t>(job.records.size());
  std::copy(job.records.begin(), job.records.end(), tool_state.dat_index.begin());
}

}  // namespace

void make_archive() {
  build_job job;
  job.folder = files::with_separator(Form5.Text1.Text());
  job.list.folder = files::to_utf8(job.folder);
  show_progress("Ostrane.dat tool - Make new Ostrane.dat");
  refresh_progress();
  std::string failure = files::failure_of([&] { run(job); });
  hide_progress("Ostrane.dat tool ");
  if (!job.is_made) {
    forms_layer::message_box(failure + " No new archive was made." + folder_hint(job));
    return;
  }
  // A failure to list the skipped files.
  if (!failure.empty()) job.skipped = std::move(failure);
  use_new_index(job);
  Form1.Visible = true;
  Form5.Visible = false;
  if (!job.skipped.empty()) forms_layer::message_box(job.skipped);
  forms_layer::message_box("Your new Ostrane.dat has been created and saved in:" + job.folder +
                           "ostrane.dat");
}

}  // namespace ostrane
