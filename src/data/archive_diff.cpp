#include "data/archive_diff.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "data/archive_index.h"
#include "data/entry_kind.h"
#include "data/entry_range.h"
#include "data/icon_file.h"
#include "files/code_page.h"
#include "files/text.h"

namespace ostrane {

namespace {

struct side {
  archive_index index = {};
  files::binary_file file = {};
};

struct diff_job {
  const std::function<void(std::size_t, std::size_t)>& on_step;
  std::size_t done = 0;  // old entries
  side old_side = {};
  side new_side = {};
  std::unique_ptr<icon_stream> stream = std::make_unique<icon_stream>();
};

void open(side& opened, const files::file_path& path) {
  opened.index = read_archive_index(path);
  open_unchanged(opened.file, path, opened.index.stamp);
}

entry_range range_at(const side& from, std::size_t i) {
  return range_of(from.index.records, static_cast<std::int32_t>(i));
}

std::u8string name_at(const side& from, std::size_t i) {
  return files::to_utf8(name_with_blanks(from.index.records[i].name));
}

void report_progress(const diff_job& job) {
  job.on_step(job.done, entries_of(job.old_side.index.records).size());
}

// Entries before the archive are equal if they begin at the same offset.
bool has_same_bytes(diff_job& job, const entry_range& a, const entry_range& b) {
  if (a.size() != b.size()) return false;
  if (a.size() <= 0 || a.start < 0 || b.start < 0) return a.start == b.start || a.size() == 0;
  job.old_side.file.seek(a.start);
  job.new_side.file.seek(b.start);
  const auto read = [](files::binary_file& file, std::string& block) {
    block.resize(file.read(std::as_writable_bytes(std::span(block))));
  };
  for (std::int64_t left = a.size(); left > 0;) {
    report_progress(job);
    const auto size = static_cast<std::size_t>(std::min<std::int64_t>(left, read_buffer_size));
    std::string seen(size, '\0');
    std::string other(size, '\0');
    read(job.old_side.file, seen);
    read(job.new_side.file, other);
    if (seen != other) return false;
    if (seen.empty()) break;  // both archives end here
    left -= static_cast<std::int64_t>(size);
  }
  return true;
}

// Returns null if the pictures are too large together.
std::optional<std::vector<std::size_t>> icons_that_differ(diff_job& job, const entry_range& a,
                                                          const entry_range& b) {
  const icon_file old_file = read_icon_file(job.old_side.file, a.start, a.end);
  const icon_file new_file = read_icon_file(job.new_side.file, b.start, b.end);
  if (count_picture_cells(job.old_side.file, old_file) +
          count_picture_cells(job.new_side.file, new_file) >
      max_job_cells) {
    return {};
  }
  const std::size_t fewer = std::min(old_file.positions.size(), new_file.positions.size());
  const std::size_t more = std::max(old_file.positions.size(), new_file.positions.size());
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < more; ++i) {
    report_progress(job);
    const bool is_same =
        i < fewer && read_stored_icon(*job.stream, job.old_side.file, old_file, i) ==
                         read_stored_icon(*job.stream, job.new_side.file, new_file, i);
    if (!is_same) numbers.push_back(i + 1);
  }
  return numbers;
}

std::optional<entry_difference> difference_of(diff_job& job, std::size_t old_index,
                                              std::size_t new_index) {
  const entry_range a = range_at(job.old_side, old_index);
  const entry_range b = range_at(job.new_side, new_index);
  if (has_same_bytes(job, a, b)) return {};
  entry_difference one = {name_at(job.new_side, new_index), a.size(), b.size(), {}};
  const record_name& name = job.new_side.index.records[new_index].name;
  if (kind_of_entry(name_without_nuls(name)) == entry_kind::icons) {
    one.icons = icons_that_differ(job, a, b);
  }
  return one;
}

// For each old entry the new one of its name, in their order.
std::vector<std::optional<std::size_t>> pairs_by_name(std::span<const dat_record> old_entries,
                                                      std::span<const dat_record> new_entries) {
  std::unordered_map<std::string, std::vector<std::size_t>> in_new;  // the last one first
  for (std::size_t i = new_entries.size(); i-- > 0;) {
    in_new[name_key(new_entries[i].name)].push_back(i);
  }
  std::vector<std::optional<std::size_t>> pairs(old_entries.size());
  for (std::size_t i = 0; i < old_entries.size(); ++i) {
    std::vector<std::size_t>& same = in_new[name_key(old_entries[i].name)];
    if (same.empty()) continue;
    pairs[i] = same.back();
    same.pop_back();
  }
  return pairs;
}

}  // namespace

std::vector<entry_difference> diff_archives(
    const files::file_path& old_archive, const files::file_path& new_archive,
    const std::function<void(std::size_t, std::size_t)>& on_step) {
  diff_job job = {.on_step = on_step};
  open(job.old_side, old_archive);
  open(job.new_side, new_archive);
  const auto pairs =
      pairs_by_name(entries_of(job.old_side.index.records), entries_of(job.new_side.index.records));
  std::vector<bool> is_paired(entries_of(job.new_side.index.records).size());
  std::vector<entry_difference> found;
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (pairs[i]) {
      if (const auto one = difference_of(job, i, *pairs[i])) found.push_back(*one);
      is_paired[*pairs[i]] = true;
    } else {
      found.push_back({name_at(job.old_side, i), range_at(job.old_side, i).size(), {}, {}});
    }
    ++job.done;
  }
  for (std::size_t i = 0; i < is_paired.size(); ++i) {
    if (is_paired[i]) continue;
    found.push_back({name_at(job.new_side, i), {}, range_at(job.new_side, i).size(), {}});
  }
  require_unchanged(job.old_side.file, job.old_side.index.stamp, "comparison");
  require_unchanged(job.new_side.file, job.new_side.index.stamp, "comparison");
  return found;
}

}  // namespace ostrane
