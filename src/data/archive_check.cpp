#include "data/archive_check.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

#include "data/archive_index.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "data/entry_kind.h"
#include "data/entry_range.h"
#include "data/icon_check.h"
#include "data/number_text.h"
#include "data/palette.h"
#include "files/text.h"

namespace ostrane {

namespace {

constexpr std::int64_t palette_size = palette_colours * colour_size;

struct archive_check {
  const fault_sink& report;
  archive_index index;
};

std::size_t entry_count(const archive_check& check) {
  return entries_of(check.index.records).size();
}

std::string name_of(const archive_check& check, std::size_t index) {
  return name_with_blanks(check.index.records[index].name);
}

// An entry without a name is reported by its 1-based number.
std::string shown_name(const archive_check& check, std::size_t index) {
  const std::string name = files::printable(name_of(check, index));
  return name.empty() ? "entry " + std::to_string(index + 1) : name;
}

std::int64_t start_of(const archive_check& check, std::size_t index) {
  return check.index.records[index].offset;
}

std::int64_t size_of(const archive_check& check, std::size_t index) {
  return range_of(check.index.records, static_cast<std::int32_t>(index)).size();
}

void check_ends(const archive_check& check) {
  if (check.index.records.empty()) {
    check.report("", "its index has no end record");
    return;
  }
  const std::int64_t after_index = index_size(std::ssize(check.index.records));
  const std::int64_t gap = start_of(check, 0) - after_index;
  if (gap > 0) {
    check.report("", "it has " + counted(gap, "byte") + " between its index and the first entry");
  }
  const dat_record& end = check.index.records.back();
  if (end.name != record_name{}) check.report("", "its end record has a name");
  const std::int64_t rest = check.index.stamp.size - end.offset;
  if (rest > 0) {
    check.report("", "it has " + counted(rest, "byte") + " after the end record's offset");
  }
  if (rest < 0) {
    check.report("", "its end record's offset is " + counted(-rest, "byte") + " after its end");
  }
  if (end.offset < after_index) check.report("", "its end record's offset is in the index");
}

void check_names(const archive_check& check) {
  std::unordered_map<std::string, std::size_t> known;
  for (std::size_t i = 0; i < entry_count(check); ++i) {
    const std::string name = name_of(check, i);
    const std::string unsafe = unsafe_name_reason(name);
    if (!unsafe.empty()) check.report(shown_name(check, i), "cannot become a file: " + unsafe);
    const auto [first, is_new] = known.emplace(files::compare_key(name), i);
    if (!is_new) {
      check.report(shown_name(check, i),
                   "entry " + std::to_string(first->second + 1) + " has its name too");
    }
  }
}

void check_offsets(const archive_check& check) {
  const std::int64_t file_size = check.index.stamp.size;
  const std::int64_t after_index = index_size(std::ssize(check.index.records));
  for (std::size_t i = 0; i < entry_count(check); ++i) {
    const std::string name = shown_name(check, i);
    const std::int64_t start = start_of(check, i);
    const std::string offset = "its offset " + std::to_string(start);
    if (start < 0) check.report(name, offset + " is below 0");
    if (start >= 0 && start < after_index) check.report(name, offset + " is in the index");
    if (start > file_size) check.report(name, offset + " is after the end of the archive");
    if (size_of(check, i) < 0) {
      check.report(name, offset + " is out of order: the next one is " +
                             std::to_string(start_of(check, i + 1)));
    } else if (start >= 0 && start <= file_size && start + size_of(check, i) > file_size) {
      const std::int64_t excess = start + size_of(check, i) - file_size;
      check.report(name, "it ends " + counted(excess, "byte") + " after the end of the archive");
    }
  }
}

using overlap = std::pair<std::size_t, std::size_t>;  // an entry and one that begins before it

// Compares each entry with the entry that ends last among those that begin before it.
std::vector<overlap> overlaps_in(const archive_check& check) {
  std::vector<overlap> overlaps;
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < entry_count(check); ++i) {
    if (size_of(check, i) > 0) order.push_back(i);
  }
  std::stable_sort(order.begin(), order.end(), [&check](std::size_t a, std::size_t b) {
    return check.index.records[a].offset < check.index.records[b].offset;
  });
  for (std::size_t k = 1, furthest = 0; k < order.size(); ++k) {
    const std::size_t other = order[furthest];
    const std::size_t entry = order[k];
    const std::int64_t end = start_of(check, other) + size_of(check, other);
    if (start_of(check, entry) < end) overlaps.emplace_back(entry, other);
    if (start_of(check, entry) + size_of(check, entry) > end) furthest = k;
  }
  return overlaps;
}

void report_overlaps(const archive_check& check, const std::vector<overlap>& overlaps) {
  for (const auto& [entry, other] : overlaps) {
    check.report(shown_name(check, entry), "it overlaps with " + shown_name(check, other));
  }
}

void check_content(const archive_check& check, files::binary_file& file, icon_stream& stream,
                   std::size_t index) {
  const std::int64_t size = size_of(check, index);
  const std::string name = shown_name(check, index);
  switch (kind_of_entry(name_without_nuls(check.index.records[index].name))) {
    case entry_kind::icons:
      check_icon_file(file, check.index.records[index].offset,
                      check.index.records[index + 1].offset, stream,
                      [&](const std::string& fault) { check.report(name, fault); });
      break;
    case entry_kind::palette:
      if (size != palette_size) {
        check.report(name, "a palette has " + std::to_string(palette_size) +
                               " bytes, this one has " + std::to_string(size));
      }
      break;
    case entry_kind::text:
      if (size > max_shown_text) {
        check.report(name, "of its " + std::to_string(size) + " bytes only " +
                               std::to_string(max_shown_text) + " are shown");
      }
      break;
    case entry_kind::other:
      break;
  }
}

}  // namespace

void check_archive(
    const files::file_path& path, const fault_sink& report,
    const std::function<void(std::size_t, std::size_t, const std::string&)>& on_entry) {
  archive_check check{report, {}};
  files::binary_file file;
  try {
    check.index = read_archive_index(path);
  } catch (const data_error& error) {
    report("", error.told.reason);
    return;
  }
  open_unchanged(file, path, check.index.stamp);
  check_ends(check);
  check_names(check);
  check_offsets(check);
  const std::vector<overlap> overlaps = overlaps_in(check);
  report_overlaps(check, overlaps);
  // Only the first of overlapping entries is read, so that no byte is read for many entries.
  const std::unordered_map<std::size_t, std::size_t> unread(overlaps.begin(), overlaps.end());
  const auto stream = std::make_unique<icon_stream>();
  for (std::size_t i = 0; i < entry_count(check); ++i) {
    on_entry(i, entry_count(check), name_of(check, i));
    if (is_whole(check.index, i) && !unread.contains(i)) check_content(check, file, *stream, i);
  }
  require_unchanged(file, check.index.stamp, "check");
}

}  // namespace ostrane
