#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/interruption.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "data/extraction.h"
#include "files/code_page.h"
#include "files/file_writer.h"

namespace ostrane::command {

namespace {

struct extraction_job {
  const extract_options& options;
  files::binary_file archive = {};
  archive_index index = {};
  std::vector<bool> chosen = {};
};

int report_skipped_entries(const extraction_result& result) {
  for (const skipped_file& entry : result.skipped) {
    print_error({files::to_utf8(entry.name), "not extracted: " + entry.reason});
  }
  if (result.stopped) {
    print_error(result.stopped);
    return status_failed;
  }
  if (result.skipped.empty()) return status_done;
  return result.written == 0 ? status_failed : status_differs;
}

// A dry run only names the files, except those that are skipped.
bool is_wanted(const extraction_job& job, files::case_insensitive_lookup& names, std::size_t i) {
  const std::string name = name_with_blanks(job.index.records[i].name);
  if (!job.chosen[i] || !is_dry_run() || !unsafe_name_reason(name).empty()) return job.chosen[i];
  return begin_write(file_in(job.options.folder, name, names).shown);
}

int extract_to_folder(extraction_job& job) {
  make_folder(job.options.folder);
  files::case_insensitive_lookup names;
  const extraction_result result = extract_entries(
      job.archive, job.index.records,
      [&](const std::string& name) {
        files::file_path target = file_in(job.options.folder, name, names);
        begin_write(target.shown);
        return target;
      },
      shown_progress(job.index.records.size()),
      {.is_wanted = [&](std::size_t number) { return is_wanted(job, names, number); },
       .entries_are_adjacent = false,
       .replaces_atomically = !job.options.overwrites,
       .truncates = true});
  return report_skipped_entries(result);
}

void copy_entry(extraction_job& job, std::size_t entry, files::binary_file& to) {
  const std::int64_t start = job.index.records[entry].offset;
  std::int64_t left = job.index.records[entry + 1].offset - start;
  if (start < 0 || left < 0 || start + left > job.index.stamp.size) {
    throw data_error(files::to_utf8(name_with_blanks(job.index.records[entry].name)),
                     "is not contained in the archive with all its bytes.");
  }
  job.archive.seek(start);
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
  if (!begin_write(files::as_utf8(output))) return status_done;
  files::binary_file to;
  if (open_stream(output, to)) {
    copy_entry(job, entry, to);
    to.close();
    return status_done;
  }
  files::file_writer file(to, named_link_target(output));
  copy_entry(job, entry, to);
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
