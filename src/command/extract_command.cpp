#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/interruption.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/extraction.h"
#include "files/code_page.h"
#include "files/file_writer.h"
#include "files/work_files.h"

namespace ostrane::command {

namespace {

struct extraction_job {
  const extract_options& options;
  files::binary_file archive = {};
  archive_index index = {};
  std::vector<bool> chosen = {};
};

void report_faults(const extraction_result& result) {
  for (const skipped_file& entry : result.skipped) {
    print_error({files::to_utf8(entry.name), "not extracted: " + entry.reason});
  }
  if (result.stopped) print_error(result.stopped);
}

int status_of(const extraction_result& result) {
  if (!result.stopped && result.skipped.empty()) return status_done;
  return result.stopped || result.written == 0 ? status_failed : status_differs;
}

int extract_to_folder(extraction_job& job) {
  prepare_folder(job.options.folder);
  files::case_insensitive_lookup names;
  const extraction_result result = extract_entries(
      job.archive, job.index.records,
      [&](const std::string& name) { return file_in(job.options.folder, name, names); },
      shown_progress(job.index.records.size()),
      {.is_wanted = [&job](std::size_t number) { return job.chosen[number]; },
       .entries_are_adjacent = false,
       .rules = {.mode = job.options.overwrites ? files::write_mode::in_place
                                                : files::write_mode::atomic},
       .truncates = true,
       .may_write =
           [](const files::file_path& to) {
             report_write(to.shown);
             return !is_dry_run();
           }});
  report_faults(result);
  return status_of(result);
}

void copy_entry(extraction_job& job, const entry_range& range, files::binary_file& to) {
  std::int64_t left = size_of(range);
  job.archive.seek(range.start);
  while (left > 0) {
    check_interruption();
    const std::size_t moved = to.write_from(job.archive, static_cast<std::size_t>(left));
    left = moved == 0 ? 0 : left - static_cast<std::int64_t>(moved);
  }
  require_unchanged(job.archive, job.index.stamp, "extraction");
}

int extract_to_output(extraction_job& job) {
  const std::string& output = job.options.output;
  if (std::count(job.chosen.begin(), job.chosen.end(), true) != 1) {
    throw data_error("-o takes one entry.");
  }
  const auto entry = static_cast<std::size_t>(
      std::find(job.chosen.begin(), job.chosen.end(), true) - job.chosen.begin());
  require_other_file(output, path_of_argument(job.options.archive));
  const entry_range range = whole_entry(job.index, entry);
  require_replaceable_in_dry_run(output);
  report_write(files::as_utf8(output));
  if (is_dry_run()) return status_done;
  files::binary_file to;
  if (open_stream(output, to)) {
    copy_entry(job, range, to);
    to.close();
    return status_done;
  }
  const files::file_path target = named_link_target(output);
  files::clear_leftovers(target.system.parent_path());
  files::file_writer file(to, target);
  copy_entry(job, range, to);
  file.keep();
  return status_done;
}

}  // namespace

int extract(const extract_options& options) {
  extraction_job job = {.options = options};
  const files::file_path archive = named_input(options.archive);
  job.index = read_archive_index(archive);
  job.chosen = chosen_entries(job.index.records, options.names);
  open_unchanged(job.archive, archive, job.index.stamp);
  return options.output.empty() ? extract_to_folder(job) : extract_to_output(job);
}

}  // namespace ostrane::command
