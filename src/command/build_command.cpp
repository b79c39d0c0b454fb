#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/archive_writer.h"
#include "files/case_insensitive_lookup.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/system_name.h"

namespace ostrane::command {

namespace {

namespace fs = std::filesystem;

struct build_job {
  const build_options& options;
  files::file_path folder;
  files::file_path target;
  fs::path replaced = {};  // the target, or the same name in another case
  new_archive archive = {};
};

// An archive does not contain itself. Windows finds the old file under each spelling; elsewhere a
// name in another case is another file.
bool is_target(const build_job& job, const fs::path& path) {
  const auto folded = [](const fs::path& file) {
    return files::upper_case(files::name_as_text_lossy(file.filename().native()));
  };
  if (folded(path) == archive_name) return true;
  std::error_code failed;
  return folded(path) == folded(job.replaced) && fs::equivalent(path, job.replaced, failed);
}

void list_files(build_job& job) {
  for (const std::string& name : files::files_in(job.folder)) {
    const fs::path path = job.folder.system / files::system_name(name);
    if (is_target(job, path)) continue;
    job.archive.entries.push_back(source_of_file(name, shown_as_named(path)));
  }
}

void write(build_job& job) {
  const std::size_t count = job.archive.entries.size();
  make_index(job.archive, [count](std::size_t index) { show_progress(index, count, ""); });
  if (job.options.archive != "-") {
    const bool is_linked = has_other_names(job.replaced);
    replace_archive(job.target, job.archive, shown_progress(count),
                    {.is_only_spelling = job.options.archive.empty()});
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
    if (is_target(job, file.path)) continue;
    print_error({files::to_utf8(file.name), std::string("skipped: ") + file.reason});
    status = status_differs;
  }
}

int report_files(const build_job& job) {
  int status = status_done;
  const files::failure failed = files::failure_in([&] { report_skipped_files(job, status); });
  if (failed) {
    print_error({failed.subject, failed.reason +
                                     " The archive was made, but the files that are not "
                                     "in it could not be listed."});
    status = status_differs;
  }
  for (const auto& [index, earlier] : equal_names(job.archive.entries)) {
    print_error(
        {files::to_utf8(job.archive.entries[index].shown_name),
         "its entry has the same name as that of " + job.archive.entries[earlier].shown_name});
    status = status_differs;
  }
  return status;
}

}  // namespace

int build(const build_options& options) {
  require_folder(options.folder);
  build_job job = {.options = options, .folder = named_file(options.folder), .target = {}};
  // The game finds its archive under each spelling. Another name means itself only.
  if (options.archive.empty()) {
    job.target = shown_as_named(job.folder.system / archive_name);
    job.replaced = files::existing_spelling(job.target.system);
  } else {
    job.target = named_link_target(options.archive);
    job.replaced = job.target.system;
  }
  list_files(job);
  write(job);
  return report_files(job);
}

}  // namespace ostrane::command
