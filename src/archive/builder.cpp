#include "archive/builder.h"

#include <algorithm>

#include "archive/index_reader.h"
#include "archive/skipped_files.h"
#include "data/archive_builder.h"
#include "data/sign_column_text.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "forms/form1.h"
#include "forms/form3.h"
#include "forms/form5.h"
#include "forms_layer/message_box.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t files_per_bar_step = 97;

struct build {
  build_list list;
  files::case_insensitive_lookup names;
  std::vector<dat_record> records;
  std::string left_out;  // a message, or ""
};

// What the list of files shows, without the archive itself.
std::vector<std::string> listed_files() {
  std::vector<std::string> names;
  for (std::int32_t i = 0; i < Form5.File1.ListCount(); ++i) {
    const std::string& name = Form5.File1.List(i);
    if (files::lower_case(name) != "ostrane.dat") names.push_back(name);
  }
  return names;
}

void show_current_file(const build& job, std::size_t index, const std::string& name) {
  const auto count = static_cast<std::int64_t>(job.list.names.size());
  Form3.message.Caption = "Current File : " + job.list.folder + name + "\r\nCurrent File Number: " +
                          sign_column_text(static_cast<std::int64_t>(index)) +
                          "\r\nTotal Number of Files: " + sign_column_text(count);
  Form3.Refresh();
}

void write(build& job) {
  std::int16_t total_bar_tick = 0;
  Form3.ProgressBar2.Max = static_cast<float>(job.records.size());
  Form3.ProgressBar2.Min = 0;
  const files::file_path target = {
      files::system_path(job.list.folder, job.names) / files::system_name(archive_name),
      job.list.folder + archive_name};
  write_archive(job.list, tool_state.make_index, job.records, target,
                {.on_file =
                     [&](std::size_t index, const std::string& name, std::int32_t size) {
                       move_total_bar(total_bar_tick, files_per_bar_step, index);
                       Form3.ProgressBar1.Min = 0;
                       Form3.ProgressBar1.Max = static_cast<float>(size);
                       show_current_file(job, index, name);
                     },
                 .on_bytes = move_file_bar});
}

std::string files_left_out(const build& job) {
  std::vector<skipped_file> left_out;
  for (const files::unlisted_file& file :
       files::unlisted_files_in(job.list.folder, job.list.names)) {
    if (files::upper_case(file.name) != archive_name) left_out.push_back({file.name, file.reason});
  }
  return text_of(left_out, "These files are not in the new Ostrane.dat:");
}

void run(build& job) {
  Form3.message.Caption = "Calculation internal offsets for the files in Ostrane.dat";
  Form3.Refresh();
  job.list.names = listed_files();
  job.list.path_of = [&job](const std::string& name) {
    return files::on_drives(job.list.folder + name, job.names);
  };
  job.records = measure_files(job.list, tool_state.make_index);
  Form3.Refresh();
  write(job);
  // The archive is made, so a failure to list the folder is only told.
  const std::string unknown = files::failure_of([&job] { job.left_out = files_left_out(job); });
  if (!unknown.empty()) job.left_out = unknown;
}

// What to do if a typed path leads elsewhere than the list of files.
std::string folder_hint(const build& job) {
  const std::string listed = Form5.File1.Path();
  const std::string target = files::full_path(job.list.folder);
  if (files::lower_case(listed) == files::lower_case(target)) return "";
  return " The list shows the files of " + listed + ". Double click on the folder to build from.";
}

void keep_new_index(const build& job) {
  if (tool_state.archive_is_open == flag_true) {
    read_archive(job.list.folder);
    return;
  }
  tool_state.record_count = static_cast<std::int32_t>(job.records.size());
  std::copy(job.records.begin(), job.records.end(), tool_state.dat_index.begin());
}

}  // namespace

void make_archive() {
  build job;
  job.list.folder = files::with_separator(Form5.Text1.Text());
  show_progress("Ostrane.dat tool - Make new Ostrane.dat");
  Form3.Refresh();
  const std::string failure = files::failure_of([&] { run(job); });
  hide_progress("Ostrane.dat tool ");
  if (!failure.empty()) {
    forms_layer::message_box(failure + " No new archive was made." + folder_hint(job));
    return;
  }
  keep_new_index(job);
  Form1.Visible = true;
  Form5.Visible = false;
  if (!job.left_out.empty()) forms_layer::message_box(job.left_out);
  forms_layer::message_box("Your new Ostrane.dat has been created and saved in:" + job.list.folder +
                           "ostrane.dat");
}

}  // namespace ostrane
