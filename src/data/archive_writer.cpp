#include "data/archive_writer.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "data/chunk_ladder.h"
#include "data/data_error.h"
#include "data/entry_range.h"
#include "data/new_index.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/file_system.h"
#include "files/text.h"

namespace ostrane {

namespace {

std::u8string shown(const entry_source& entry) {
  return entry.is_file() ? entry.file.shown : files::to_utf8("The entry " + entry.shown_name);
}

std::int64_t size_of(const new_archive& archive, const entry_source& entry) {
  if (entry.content) return static_cast<std::int64_t>(entry.content->size());
  if (entry.is_file()) return files::file_size(entry.file);
  return size_of(whole_entry(archive.old->index, *entry.old_index));
}

// An archive of 0 records has no end record.
void refuse_other_bytes(const old_archive& old) {
  const auto& records = old.index.records;
  const std::int64_t first = index_size(std::ssize(records));
  const std::int64_t before = records.empty() ? 0 : records.front().offset - first;
  const std::int64_t after =
      old.index.stamp.size - (records.empty() ? first : records.back().offset);
  const std::int64_t others = std::max<std::int64_t>(before, 0) + std::max<std::int64_t>(after, 0);
  if (others == 0) return;
  throw data_error(old.path.shown,
                   "has " + counted(others, "byte") + " outside its entries, which would be lost.");
}

// Sets the records of a new archive.
class index_maker {
 public:
  explicit index_maker(new_archive& archive) : archive_(archive) {
    const std::size_t count = archive.entries.size();
    if (count > max_files) {
      throw data_error("The archive would have " + std::to_string(count) +
                       " entries. It can have at most " + std::to_string(max_files) + ".");
    }
    if (archive.old) refuse_other_bytes(*archive.old);
    const bool has_old_end = archive.old && !archive.old->index.records.empty();
    if (has_old_end) end_name_ = archive.old->index.records.back().name;
    archive.records.clear();
    archive.records.reserve(count + 1);
    archive.records.push_back({first_entry_offset(count), end_name_});
  }

  // The end record moves after the entry.
  void add(const entry_source& entry, std::int64_t size) {
    dat_record& last = archive_.records.back();
    if (last.offset + size > INT32_MAX) {
      throw data_error(shown(entry),
                       "does not fit: the archive would be larger than 2 GB, which is the most "
                       "that it can be.");
    }
    last.name = entry.name;
    archive_.records.push_back({static_cast<std::int32_t>(last.offset + size), end_name_});
  }

 private:
  new_archive& archive_;
  record_name end_name_ = {};
};

struct writing {
  new_archive& archive;
  files::binary_file& to;
  const job_progress& progress;
  std::optional<index_maker> index = {};  // null if there is one already
  files::binary_file old = {};
  files::binary_file file = {};
};

std::int32_t indexed_size(const writing& job, std::size_t i) {
  return size_of(range_of(job.archive.records, static_cast<std::int32_t>(i)));
}

void open_entry(writing& job, std::size_t i) {
  const entry_source& entry = job.archive.entries[i];
  if (!job.index && !entry.content) job.progress.before_file(i, indexed_size(job, i));
  if (entry.is_file()) job.file.open_to_read(entry.file);
}

// Adds an open entry to the index that is made during the copy.
void index_entry(writing& job, std::size_t i) {
  const entry_source& entry = job.archive.entries[i];
  job.index->add(entry, entry.is_file() ? job.file.size() : size_of(job.archive, entry));
}

void copy_entry(writing& job, std::size_t i) {
  const entry_source& entry = job.archive.entries[i];
  if (entry.content) {
    job.to.write(std::as_bytes(std::span(*entry.content)));
    return;
  }
  const std::int32_t size = indexed_size(job, i);
  files::binary_file& from = entry.is_file() ? job.file : job.old;
  if (!entry.is_file()) from.seek(job.archive.old->index.records[*entry.old_index].offset);
  job.progress.on_file(i, entry.shown_name, size);
  std::int16_t small_block_bytes = 0;
  const std::int32_t copied = chunk_ladder(from, job.to, size, small_block_bytes, job.progress);
  std::array<std::byte, 1> one_more;
  if (copied < size || (entry.is_file() && from.read(one_more) > 0)) {
    throw data_error(shown(entry), "has changed its size during the copy.");
  }
  if (entry.is_file()) from.close();
}

void write_index(writing& job) {
  const std::string index = index_bytes(job.archive.records);
  job.to.write(std::as_bytes(std::span(index)));
}

}  // namespace

entry_source source_of_file(const std::string& file_name, files::file_path file) {
  return {stored_name(padded_name(file_name)), file_name, std::move(file)};
}

new_archive copy_of_archive(const files::file_path& path) {
  new_archive archive = {.old = old_archive{path, read_archive_index(path)}};
  for (const dat_record& record : entries_of(archive.old->index.records)) {
    archive.entries.push_back(
        {record.name, name_with_blanks(record.name), {}, archive.entries.size()});
  }
  return archive;
}

void put_files(new_archive& archive, const std::vector<entry_source>& files) {
  std::unordered_map<std::string, entry_source*> last_of_name;
  for (entry_source& entry : archive.entries) {
    last_of_name.insert_or_assign(name_key(entry.name), &entry);
  }
  entries_by_key others;
  for (const entry_source& file : files) {
    const auto replaced = last_of_name.find(name_key(file.name));
    if (replaced == last_of_name.end()) {
      others.insert_or_assign(name_key(file.name), file);
    } else {
      *replaced->second = {replaced->second->name, file.shown_name, file.file};
    }
  }
  insert_entries(archive, others);
}

void insert_entries(new_archive& archive, const entries_by_key& added) {
  std::vector<entry_source> merged;
  auto next = added.begin();
  for (entry_source& entry : archive.entries) {
    const std::string key = name_key(entry.name);
    for (; next != added.end() && next->first < key; ++next) merged.push_back(next->second);
    merged.push_back(std::move(entry));
  }
  for (; next != added.end(); ++next) merged.push_back(next->second);
  archive.entries = std::move(merged);
}

std::vector<std::pair<std::size_t, std::size_t>> equal_names(
    const std::vector<entry_source>& entries) {
  std::vector<std::pair<std::size_t, std::size_t>> equal;
  std::unordered_map<std::string, std::size_t> known;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto [found, is_new] = known.emplace(name_key(entries[i].name), i);
    if (!is_new) equal.emplace_back(i, std::exchange(found->second, i));
  }
  return equal;
}

std::vector<skipped_file> entries_of_equal_names(const new_archive& archive) {
  std::vector<skipped_file> equal;
  for (const auto& [later, earlier] : equal_names(archive.entries)) {
    equal.push_back({archive.entries[later].shown_name, "its entry has the same name as that of " +
                                                            archive.entries[earlier].shown_name});
  }
  return equal;
}

std::vector<std::filesystem::path::string_type> file_paths(const new_archive& archive) {
  std::vector<std::filesystem::path::string_type> paths;
  paths.reserve(archive.entries.size());
  for (const entry_source& entry : archive.entries) paths.push_back(entry.file.system.native());
  return paths;
}

void make_index(new_archive& archive, const std::function<void(std::size_t)>& on_entry) {
  index_maker index(archive);
  for (std::size_t i = 0; i < archive.entries.size(); ++i) {
    if (on_entry) on_entry(i);
    index.add(archive.entries[i], size_of(archive, archive.entries[i]));
  }
}

void write_archive_to(files::binary_file& to, new_archive& archive, const job_progress& progress) {
  writing job = {archive, to, progress};
  if (archive.old) open_unchanged(job.old, archive.old->path, archive.old->index.stamp);
  if (archive.records.empty()) {
    job.index.emplace(archive);
    to.seek(first_entry_offset(archive.entries.size()));
  } else {
    write_index(job);
  }
  for (std::size_t i = 0; i < archive.entries.size(); ++i) {
    open_entry(job, i);
    if (job.index) index_entry(job, i);
    copy_entry(job, i);
  }
  if (!job.index) return;
  to.seek(0);
  write_index(job);
}

void replace_archive(const files::file_path& target, new_archive& archive,
                     const job_progress& progress, files::write_rules rules) {
  rules.mode = files::write_mode::durable;
  files::binary_file output;
  files::file_writer to(output, target, rules);
  write_archive_to(output, archive, progress);
  to.keep([&archive] {
    // Another program may have written to the old archive or replaced it meanwhile.
    files::binary_file old;
    if (archive.old) open_unchanged(old, archive.old->path, archive.old->index.stamp);
  });
}

}  // namespace ostrane
