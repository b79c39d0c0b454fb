#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/program.h"
#include "data/archive_writer.h"
#include "files/case_insensitive_lookup.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/system_name.h"
#include "files/whole_file.h"

namespace ostrane::command {

namespace {

namespace fs = std::filesystem;

struct build_job {
  const build_options& options;
  files::file_path folder;
  files::file_path target;
  fs::path old = {};          // the file to replace; "" if it is not in the folder
  std::string old_name = {};  // in upper case
  new_archive archive = {};
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
  for (const std::string& name : files::files_in(job.folder)) {
    if (is_target(job, name)) continue;
    const fs::path path = job.folder.system / files::system_name(name);
    job.archive.entries.push_back(source_of_file(name, {path, argument_of_path(path) + ":"}));
  }
}

void write(build_job& job) {
  const std::size_t count = job.archive.entries.size();
  make_index(job.archive, [count](std::size_t index) { show_progress(index, count, ""); });
  if (job.options.archive != "-") {
    const bool is_linked = has_other_names(files::existing_spelling(job.target.system));
    replace_archive(job.target, job.archive, shown_progress(count));
    if (is_linked) note_other_names(job.target);
    return;
  }
  files::binary_file output;
  open_output(output);
  write_archive_to(output, job.archive, shown_progress(count));
  output.close();
}

void report_skipped_files(const build_job& job, int& status) {
  for (const files::unlisted_file& file :
       files::unlisted_files_in(job.folder, file_paths(job.archive))) {
    if (is_target(job, file.name)) continue;
    print_error(files::to_utf8(file.name), std::string("skipped: ") + file.reason);
    status = status_differs;
  }
}

int report_files(const build_job& job) {
  int status = status_done;
  const std::string failure = files::failure_of([&] { report_skipped_files(job, status); });
  if (!failure.empty()) {
    print_error("", "The archive was made, but the files that are not in it could not be listed: " +
                        files::mixed_to_utf8(failure));
    status = status_differs;
  }
  for (const auto& [index, earlier] : equal_names(job.archive.entries)) {
    print_error(files::to_utf8(job.archive.entries[index].shown_name),
                "its entry has the same name as that of " +
                    files::to_utf8(job.archive.entries[earlier].shown_name));
    status = status_differs;
  }
  return status;
}

}  // namespace

int build(const build_options& options) {
  require_folder(options.folder);
  build_job job = {.options = options, .folder = named_file(options.folder), .target = {}};
  if (options.archive.empty()) {
    const fs::path path = job.folder.system / archive_name;
    job.target = {path, argument_of_path(path) + ":"};
  } else {
    job.target = named_link_target(options.archive);
  }
  const files::file_path old = {files::existing_spelling(job.target.system), job.target.shown};
  std::error_code failed;
  const fs::path parent = fs::absolute(old.system, failed).parent_path();
  if (fs::equivalent(parent, job.folder.system, failed)) {
    job.old = old.system;
    job.old_name =
        files::upper_case(files::name_as_text(old.system.filename().native()).value_or(""));
  }
  list_files(job);
  if (options.archive != "-") files::require_replaceable(old);
  write(job);
  return report_files(job);
}

}  // namespace ostrane::command
