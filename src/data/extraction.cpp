#include "data/extraction.h"

#include <algorithm>
#include <map>
#include <utility>

#include "data/archive_index.h"
#include "data/chunk_ladder.h"
#include "data/entry_file_name.h"
#include "data/entry_range.h"
#include "files/failure.h"

namespace ostrane {

namespace {

constexpr const char* archive_too_short = "the archive ends before it does";

struct extraction {
  files::binary_file& archive;
  std::span<const dat_record> records;
  const entry_target& target;
  const job_progress& progress;
  const extraction_choice& choice;
  files::binary_file file = {};
  files::file_stamp stamp = {};
  std::size_t index = 0;        // of the current entry
  bool is_overwriting = false;  // the current entry was written over another one
  std::int64_t position = 0;    // of the current entry in the archive
  std::int16_t small_block_bytes = 0;
  std::map<std::pair<std::uint64_t, std::uint64_t>, std::size_t> written = {};  // entry by identity
  extraction_result result = {};
};

// Call when the current entry replaces the content of a file. If that is an entry of this job, it
// counts as skipped.
void take_back_overwritten(extraction& job, const files::file_identity& old) {
  const auto found = job.written.find({old.device, old.number});
  if (found == job.written.end()) return;
  job.result.skipped.push_back({name_with_blanks(job.records[found->second].name),
                                "entry " + std::to_string(job.index + 1) + " was written over it"});
  job.is_overwriting = true;
  --job.result.written;
  job.written.erase(found);
}

void remember_written(extraction& job, const files::file_identity& file) {
  if (file != files::file_identity{}) job.written[{file.device, file.number}] = job.index;
}

// Copies the current entry to an open file. Returns false if the archive ends before it does.
bool copy_entry(extraction& job, files::binary_file& to, std::int32_t size) {
  job.archive.seek(job.position);
  return chunk_ladder(job.archive, to, size, job.small_block_bytes, job.progress) == size;
}

// Writes the entry, or only checks its target if it may not be written. Returns why that failed, or
// "". Throws file_error.
std::string write_entry(extraction& job, const std::string& name, std::int32_t size) {
  files::write_rules rules = job.choice.rules;
  rules.source = job.stamp.identity;
  const files::file_path target = job.target(name);
  if (job.choice.may_write && !job.choice.may_write(target)) {
    require_writable(target, rules);
    return "";
  }
  files::file_writer to(job.file, target, rules);
  // In place an empty entry leaves a file as it is that is not truncated.
  const bool changes_file = to.is_new() || size > 0 || job.choice.truncates;
  if (!to.is_new() && changes_file) take_back_overwritten(job, to.old_file());
  if (!copy_entry(job, job.file, size)) return archive_too_short;
  if (job.choice.truncates && !to.is_new()) job.file.truncate();
  to.keep([&job] { require_unchanged(job.archive, job.stamp, "extraction"); });
  if (to.is_new()) take_back_overwritten(job, to.old_file());
  if (changes_file) remember_written(job, to.written_file());
  return "";
}

// Returns why the entry must be skipped before its file is opened, or "".
std::string reason_to_skip(const extraction& job, const std::string& name, std::int32_t size) {
  if (size < 0) return "the index gives it a size below 0";
  if (job.position < 0) return "the index puts it before the file";
  std::string reason = unsafe_name_reason(name);
  if (reason.empty() && job.position + size > job.stamp.size) {
    reason = archive_too_short;
  }
  return reason;
}

std::string try_to_write_entry(extraction& job, const std::string& name, std::int32_t size) {
  std::string reason = reason_to_skip(job, name, size);
  if (!reason.empty()) return reason;
  try {
    return write_entry(job, name, size);
  } catch (const files::file_error& error) {
    if (error.number == files::file_error_number::disk_full) throw;
    // A read error is one of the archive.
    const bool is_of_archive = error.action == files::file_action::read;
    const std::string& sentence = error.told.reason;
    return (is_of_archive ? "the archive " : "its file ") + sentence.substr(0, sentence.size() - 1);
  }
}

void extract_entry(extraction& job, std::size_t index) {
  if (job.choice.is_wanted && !job.choice.is_wanted(index)) return;
  if (!job.choice.entries_are_adjacent) job.position = job.records[index].offset;
  const std::int32_t size = size_of(range_of(job.records, static_cast<std::int32_t>(index)));
  const std::string name = name_with_blanks(job.records[index].name);
  job.index = index;
  job.is_overwriting = false;
  job.progress.on_file(index, name, size);
  const std::string reason = try_to_write_entry(job, name, size);
  job.position += std::max(size, 0);
  if (!reason.empty()) {
    job.result.skipped.push_back({name, reason});
    return;
  }
  ++job.result.written;
  // A file has the name of the first entry that was written to it.
  if (files::is_hidden_name(name) && !job.is_overwriting) {
    job.result.hidden.push_back({name, "its name begins with a dot"});
  }
}

}  // namespace

extraction_result extract_entries(files::binary_file& archive, std::span<const dat_record> records,
                                  const entry_target& target, const job_progress& progress,
                                  const extraction_choice& choice) {
  extraction job{archive, records, target, progress, choice};
  job.result.stopped = files::failure_in([&] {
    job.stamp = archive.info().stamp;
    if (!records.empty()) job.position = records[0].offset;
    for (std::size_t index = 0; index + 1 < records.size(); ++index) extract_entry(job, index);
    require_unchanged(job.archive, job.stamp, "extraction");
  });
  return std::move(job.result);
}

}  // namespace ostrane
