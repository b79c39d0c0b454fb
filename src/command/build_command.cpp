#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/program.h"
#include "data/archive_builder.h"
#include "files/case_insensitive_lookup.h"
#include "files/code_page.h"
#include "files/file_system.h"
#include "files/file_writer.h"
#include "files/system_name.h"

namespace ostrane::command {

namespace {

namespace fs = std::filesystem;

struct build_job {
  const build_options& options;
  files::file_path folder;
  files::file_path target;
  fs::path old = {};          // the file to replace; "" if it is not in the folder
  std::string old_name = {};  // in upper case
  build_list list = {};
  std::vector<make_record> files = {};
  std::vector<dat_record> records = {};
};

// An archive does not contain itself.
bool is_target(const build_job& job, const std::string& name) {
  if (files::upper_case(name) == archive_name) return true;
  if (job.old.empty() || files::upper_case(name) != job.old_name) return false;
  // Windows finds the old file under each spelling; elsewhere this may be another file.
  std::error_code failed;
  return fs::equivalent(job.folder.system / files::system_name(name), job.old, failed);
}

void list_files(build_job& job) {
  job.list.folder = (job.folder.system / "").u8string();
  for (const std::string& name : files::files_in(job.folder)) {
    if (is_target(job, name)) continue;
    const fs::path path = job.folder.system / files::system_name(name);
    job.list.names.push_back(name);
    job.list.paths.push_back(shown_as_named(path));
  }
  job.files.resize(job.list.names.size());
}

void write(build_job& job) {
  std::size_t current = 0;
  const auto show = [&](const std::string& name) {
    show_progress(current, job.files.size(), name);
  };
  const job_progress progress = {
      .on_file =
          [&](std::size_t number, const std::string& name, std::int32_t) {
            current = number;
            show(name);
          },
      .on_bytes = [&](std::int32_t) { show(""); }};
  if (job.options.archive != "-") {
    write_archive(job.list, job.files, job.records, job.target, progress);
    return;
  }
  files::binary_file output;
  open_output(output);
  write_archive_to(output, job.list, job.files, job.records, progress);
  output.close();
}

int report_skipped_files(const build_job& job) {
  int status = status_done;
  for (const files::unlisted_file& file : files::unlisted_files_in(job.folder, job.list.names)) {
    if (is_target(job, file.name)) continue;
    print_error({files::to_utf8(file.name), std::string("skipped: ") + file.reason});
    status = status_differs;
  }
  return status;
}

}  // namespace

int build(const build_options& options) {
  require_folder(options.folder);
  build_job job = {.options = options, .folder = named_file(options.folder), .target = {}};
  if (options.archive.empty()) {
    job.target = shown_as_named(job.folder.system / archive_name);
  } else {
    job.target = named_link_target(options.archive);
  }
  // The game finds its archive under each spelling; another name means itself only.
  const files::file_path old = {
      options.archive.empty() ? files::existing_spelling(job.target.system) : job.target.system,
      job.target.shown};
  std::error_code failed;
  const fs::path parent = fs::absolute(old.system, failed).parent_path();
  if (fs::equivalent(parent, job.folder.system, failed)) {
    job.old = old.system;
    job.old_name =
        files::upper_case(files::name_as_text(old.system.filename().native()).value_or(""));
  }
  list_files(job);
  if (options.archive != "-") files::require_writable(old);
  job.records = measure_files(job.list, job.files);
  write(job);
  return report_skipped_files(job);
}

}  // namespace ostrane::command
