#include "archive/make_archive.h"

#include "archive/index_reader.h"
#include "archive/skipped_files.h"
#include "data/archive_writer.h"
#include "data/new_index.h"
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
  files::case_insensitive_lookup names = {};
  new_archive archive = {};
  bool is_made = false;
  std::string report = {};  // lines about files, each after a line end, or ""
};

// Takes the rows of `File1` without the archive itself.
void list_files(build_job& job) {
  const std::filesystem::path folder = files::system_path(job.folder, job.names);
  for (std::int32_t i = 0; i < Form5.File1.ListCount(); ++i) {
    const std::string& name = Form5.File1.List(i);
    if (is_archive_name(name)) continue;
    job.archive.entries.push_back(source_of_file(
        name, {folder / files::system_name(name), files::to_utf8(job.folder + name)}));
  }
}

void find_in_any_case(build_job& job) {
  const std::filesystem::path folder = files::system_path(job.folder, job.names);
  for (entry_source& entry : job.archive.entries) {
    entry.file.system = job.names.find(folder, entry.shown_name);
  }
}

void build_index(build_job& job) {
  try {
    make_index(job.archive);
    return;
  } catch (const files::file_error& error) {
    if (error.number != files::file_error_number::file_not_found) throw;
  }
  // If the list is that of another folder, the files here may be spelled differently.
  find_in_any_case(job);
  make_index(job.archive);
}

void store_make_index(const new_archive& archive) {
  for (std::size_t i = 0; i < archive.entries.size(); ++i) {
    const std::int32_t offset = archive.records[i].offset;
    tool_state.make_index[i] = {.size = archive.records[i + 1].offset - offset,
                                .name = padded_name(archive.entries[i].shown_name),
                                .offset = offset};
  }
}

void show_current_file(const build_job& job, std::size_t index, const std::string& name) {
  const auto count = static_cast<std::int64_t>(job.archive.entries.size());
  show_progress_text("Current File : " + job.folder + name + "\r\nCurrent File Number: " +
                     sign_column_text(static_cast<std::int64_t>(index)) +
                     "\r\nTotal Number of Files: " + sign_column_text(count));
}

void write(build_job& job) {
  std::int16_t total_bar_tick = 0;
  set_total_range(static_cast<std::int64_t>(job.archive.records.size()));
  // Always in upper case, whatever the old archive is called.
  const files::file_path target = {
      files::system_path(job.folder, job.names) / files::system_name(archive_name),
      files::to_utf8(job.folder + archive_name)};
  replace_archive(target, job.archive,
                  {.before_file =
                       [&](std::size_t index, std::int32_t size) {
                         advance_total_bar(total_bar_tick, files_per_bar_step, index);
                         set_file_range(size);
                       },
                   .on_file = [&](std::size_t index, const std::string& name,
                                  std::int32_t) { show_current_file(job, index, name); },
                   .on_bytes = move_file_bar},
                  {.replaces_read_only = true, .is_only_spelling = true});
}

bool list_is_of_other_folder(const build_job& job) {
  return files::lower_case(Form5.File1.Path()) != files::lower_case(files::full_path(job.folder));
}

std::string left_out_text(build_job& job) {
  std::vector<skipped_file> left_out;
  const char* unknown = list_is_of_other_folder(job) ? "the list is that of another folder"
                                                     : "it came after the files were listed";
  for (const files::unlisted_file& file : files::unlisted_files_in(
           files::to_file_path(job.folder, job.names), file_paths(job.archive), unknown)) {
    if (!is_archive_name(file.name)) left_out.push_back({file.name, file.reason});
  }
  return skipped_files_text(left_out, "\nThese files are not in the new Ostrane.dat:");
}

void describe_files(build_job& job) {
  const std::string failure = files::failure_of([&job] { job.report = left_out_text(job); });
  if (!failure.empty()) {
    job.report = "\nThe files that are not in the new Ostrane.dat could not be listed: " + failure;
  }
  job.report +=
      skipped_files_text(entries_of_equal_names(job.archive),
                         "\nThese entries of the new Ostrane.dat have the name of another:");
}

void build(build_job& job) {
  show_progress_text("Calculation internal offsets for the files in Ostrane.dat");
  list_files(job);
  build_index(job);
  store_make_index(job.archive);
  refresh_progress();
  write(job);
  job.is_made = true;
  describe_files(job);
}

// A hint for a typed path that is not the folder of the listed files, or "".
std::string folder_hint(const build_job& job) {
  if (!list_is_of_other_folder(job)) return "";
  return " The list shows the files of " + Form5.File1.Path() +
         ". Double click on the folder to build from.";
}

// An open archive is replaced by the new one, as dat_index and List1 must describe the same file.
// If none is open, none is opened; only the index is stored.
void use_new_index(const build_job& job) {
  if (tool_state.archive_is_open == flag_true) return read_archive(job.folder);
  store_records(job.archive.records);
}

}  // namespace

void make_archive() {
  build_job job = {.folder = files::with_separator(Form5.Text1.Text())};
  show_progress("Ostrane.dat tool - Make new Ostrane.dat");
  refresh_progress();
  const std::string failure = files::failure_of([&] { build(job); });
  hide_progress("Ostrane.dat tool ");
  if (!job.is_made) {
    return forms_layer::message_box(failure + " No new archive was made." + folder_hint(job));
  }
  use_new_index(job);
  Form1.Visible = true;
  Form5.Visible = false;
  if (!job.report.empty()) forms_layer::message_box(job.report.substr(1));
  forms_layer::message_box("Your new Ostrane.dat has been created and saved in:" + job.folder +
                           "ostrane.dat");
}

}  // namespace ostrane
