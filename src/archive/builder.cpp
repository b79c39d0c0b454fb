#include "archive/builder.h"

#include <algorithm>
#include <array>

#include "archive/chunk_ladder.h"
#include "archive/format.h"
#include "archive/index_reader.h"
#include "archive/new_index.h"
#include "archive/progress.h"
#include "archive/skipped_files.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/little_endian.h"
#include "files/paths.h"
#include "files/replaced_file.h"
#include "files/system_name.h"
#include "forms/form1.h"
#include "forms/form3.h"
#include "forms/form5.h"
#include "forms_layer/message_box.h"
#include "state/files.h"
#include "state/sign_column_text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t files_per_bar_step = 97;
constexpr const char* archive_name = "OSTRANE.DAT";

struct build {
  std::string target_folder;
  files::case_insensitive_lookup names;
  std::vector<std::string> files;
  std::vector<dat_record> records;
  std::int16_t total_bar_tick = 0;
  std::string left_out;  // a message, or ""
};

[[noreturn]] void fail(const std::string& text) {
  throw files::file_error{files::file_error_number::device_error, text};
}

// What the list of files shows, without the archive itself.
std::vector<std::string> build_list() {
  std::vector<std::string> files;
  for (std::int32_t i = 0; i < Form5.File1.ListCount(); ++i) {
    const std::string& name = Form5.File1.List(i);
    if (files::lower_case(name) != "ostrane.dat") files.push_back(name);
  }
  if (files.size() > max_files) {
    fail("There are " + std::to_string(files.size()) + " files in " + Form5.File1.Path() +
         ". An archive holds at most " + std::to_string(max_files) + ".");
  }
  return files;
}

void write_index(const build& job, files::binary_file& archive) {
  std::array<std::byte, record_size> bytes;
  files::put_int32(bytes, 0, static_cast<std::int32_t>(job.records.size()));
  archive.write(std::span(bytes).first<count_size>());
  for (const dat_record& record : job.records) {
    encode_record(record, bytes);
    archive.write(bytes);
  }
}

void show_current_file(const build& job, std::size_t index) {
  Form3.message.Caption =
      "Current File : " + job.target_folder + job.files[index] +
      "\r\nCurrent File Number: " + sign_column_text(static_cast<std::int64_t>(index)) +
      "\r\nTotal Number of Files: " + sign_column_text(static_cast<std::int64_t>(job.files.size()));
  Form3.Refresh();
}

void copy_file(build& job, std::size_t index, files::binary_file& archive) {
  const std::int32_t size = tool_state.make_index[index].size;
  const std::string path = job.target_folder + job.files[index];
  move_total_bar(job.total_bar_tick, files_per_bar_step, index);
  std::int16_t small_block_bytes = 0;
  Form3.ProgressBar1.Min = 0;
  Form3.ProgressBar1.Max = static_cast<float>(size);
  file_5.open_to_read(files::on_drives(path, job.names));
  show_current_file(job, index);
  const std::int32_t copied = chunk_ladder(file_5, archive, size, small_block_bytes);
  std::array<std::byte, 1> one_more;
  if (copied < size || file_5.read(one_more) > 0) fail(path + " has changed its size meanwhile.");
  file_5.close();
}

void write_archive(build& job) {
  const std::filesystem::path target =
      files::system_path(job.target_folder, job.names) / files::system_name(archive_name);
  files::replaced_file archive({target, job.target_folder + archive_name});
  write_index(job, archive.file());
  Form3.ProgressBar2.Max = static_cast<float>(job.records.size());
  Form3.ProgressBar2.Min = 0;
  for (std::size_t i = 0; i < job.files.size(); ++i) copy_file(job, i, archive.file());
  archive.put_in_place();
  // The old archive has its name until the new one is there, so there never are two. If the
  // spelling cannot be changed the old one stays; names compare without regard to case.
  archive.respell(target);
  archive.flush_folder();
}

std::string files_left_out(const build& job) {
  skipped_files left_out;
  for (const files::unlisted_file& file : files::unlisted_files_in(job.target_folder, job.files)) {
    if (files::upper_case(file.name) != archive_name) {
      add_skipped(left_out, file.name, file.reason);
    }
  }
  return text_of(left_out, "These files are not in the new Ostrane.dat:");
}

void run(build& job) {
  Form3.message.Caption = "Calculation internal offsets for the files in Ostrane.dat";
  Form3.Refresh();
  job.files = build_list();
  job.records = make_new_index(job.target_folder, job.files, job.names);
  Form3.Refresh();
  write_archive(job);
  try {
    job.left_out = files_left_out(job);
  } catch (const files::file_error& error) {
    job.left_out = error.text;  // the archive is made all the same
  }
}

void keep_new_index(const build& job) {
  if (tool_state.archive_is_open == flag_true) {
    read_archive(job.target_folder);
    return;
  }
  tool_state.record_count = static_cast<std::int32_t>(job.records.size());
  std::copy(job.records.begin(), job.records.end(), tool_state.dat_index.begin());
}

}  // namespace

void make_archive() {
  build job;
  job.target_folder = files::with_separator(Form5.Text1.Text());
  show_progress("Ostrane.dat tool - Make new Ostrane.dat");
  Form3.Refresh();
  const std::string failure = files::failure_of([&] { run(job); });
  file_5.close();
  hide_progress("Ostrane.dat tool ");
  if (!failure.empty()) {
    forms_layer::message_box(failure + " No new archive was made.");
    return;
  }
  keep_new_index(job);
  Form1.Visible = true;
  Form5.Visible = false;
  if (!job.left_out.empty()) forms_layer::message_box(job.left_out);
  forms_layer::message_box(
      "Your new Ostrane.dat has been created and saved in:" + job.target_folder + "ostrane.dat");
}

}  // namespace ostrane
