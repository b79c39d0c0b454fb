#include "command/archive_change.h"
#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "data/data_error.h"
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
  new_archive archive = {};
};

// An archive does not contain itself. The game finds its archive under each spelling; another name
// means the file that it leads to.
bool is_left_out(const build_job& job, const std::string& name, const fs::path& path) {
  const std::string& named = job.options.archive;
  return is_archive_name(name) || (!named.empty() && is_same_file(named, path));
}

// Only an old archive may be both in the folder and the target.
void require_archive(const build_job& job, const fs::path& path) {
  archive_index index;
  try {
    index = read_archive_index(shown_as_named(path));
  } catch (const data_error&) {
    // It has no records.
  }
  if (!is_sound(index)) require_other_file(job.options.archive, path);
}

void collect_entries(build_job& job) {
  for (const std::string& name : files::files_in(job.folder)) {
    const fs::path path = job.folder.system / files::system_name(name);
    if (!is_left_out(job, name, path)) {
      job.archive.entries.push_back(source_of_file(name, shown_as_named(path)));
    } else if (!is_archive_name(name)) {
      require_archive(job, path);
    }
  }
}

void write(build_job& job) {
  if (!is_stream(job.options.archive)) {
    write_changed(job.archive, job.target, {.is_only_spelling = job.options.archive.empty()});
    return;
  }
  const std::size_t count = job.archive.entries.size();
  make_index(job.archive, [count](std::size_t index) { show_progress(index, count, ""); });
  report_write(job.target.shown);
  if (is_dry_run()) return;
  files::binary_file output;
  open_stream(job.options.archive, output);
  write_archive_to(output, job.archive, shown_progress(count));
  output.close();
}

std::vector<files::failure> faults_of(const build_job& job) {
  std::vector<files::failure> faults;
  const files::failure failed = files::failure_in([&] {
    for (const auto& file : files::unlisted_files_in(job.folder, file_paths(job.archive))) {
      if (is_left_out(job, file.name, file.path)) continue;
      faults.push_back({files::to_utf8(file.name), std::string("skipped: ") + file.reason});
    }
  });
  if (failed) {
    const std::string made = is_dry_run() ? "would be made" : "was made";
    faults.push_back({failed.subject, failed.reason + " The archive " + made +
                                          ", but the files that are not in it could not be "
                                          "listed."});
  }
  for (const skipped_file& entry : entries_of_equal_names(job.archive)) {
    faults.push_back({files::to_utf8(entry.name), entry.reason});
  }
  return faults;
}

}  // namespace

int build(const build_options& options) {
  require_folder(options.folder);
  build_job job = {.options = options, .folder = named_file(options.folder), .target = {}};
  job.target = options.archive.empty() ? shown_as_named(job.folder.system / archive_name)
                                       : named_link_target(options.archive);
  collect_entries(job);
  write(job);
  const std::vector<files::failure> faults = faults_of(job);
  for (const files::failure& fault : faults) print_error(fault);
  return faults.empty() ? status_done : status_differs;
}

}  // namespace ostrane::command
