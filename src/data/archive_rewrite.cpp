#include "data/archive_rewrite.h"

#include <algorithm>
#include <array>

#include "data/chunk_ladder.h"
#include "data/data_error.h"
#include "data/new_index.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/file_system.h"
#include "files/file_writer.h"
#include "files/text.h"

namespace ostrane {

namespace {

std::string key_of(const record_name& name) { return files::compare_key(name_with_blanks(name)); }

struct rewriting {
  const archive_index& old;
  files::binary_file& archive;
  files::binary_file& file;
  const job_progress& progress;
};

std::int64_t size_of(const archive_index& old, const rewritten_entry& entry) {
  if (!entry.old_index) return files::file_size(entry.file);
  const std::size_t i = *entry.old_index;
  const std::int64_t start = old.records[i].offset;
  const std::int64_t size = old.records[i + 1].offset - start;
  if (start < 0 || size < 0 || start + size > old.stamp.size) {
    throw data_error(files::to_utf8(name_with_blanks(entry.name)),
                     "is not contained in the archive with all its bytes.");
  }
  return size;
}

// Refuses an archive with bytes that belong to no entry, as the copy would lose them.
void refuse_other_bytes(const files::file_path& path, const archive_index& old) {
  const std::int64_t before =
      std::int64_t{old.records.front().offset} - first_entry_offset(old.records.size() - 1);
  const std::int64_t after = old.stamp.size - old.records.back().offset;
  const std::int64_t others = std::max<std::int64_t>(before, 0) + std::max<std::int64_t>(after, 0);
  if (others == 0) return;
  throw data_error(
      path.shown, "has " + counted(others, "byte") + " that belong to no entry and would be lost.");
}

std::vector<dat_record> new_records(const archive_index& old,
                                    const std::vector<rewritten_entry>& entries) {
  if (entries.size() > max_files) {
    throw data_error("An archive holds at most " + std::to_string(max_files) + " entries.");
  }
  std::int32_t offset = first_entry_offset(entries.size());
  std::vector<dat_record> records;
  records.reserve(entries.size() + 1);
  for (const rewritten_entry& entry : entries) {
    records.push_back({.offset = offset, .name = entry.name});
    const std::int64_t size = size_of(old, entry);
    if (offset + size > INT32_MAX) {
      throw data_error("The archive would be larger than 2 GB, which is the most that it can be.");
    }
    offset += static_cast<std::int32_t>(size);
  }
  records.push_back({.offset = offset, .name = {}});
  return records;
}

void copy_entry(const rewriting& job, const rewritten_entry& entry, std::int32_t size,
                files::binary_file& to) {
  std::int16_t small_block_bytes = 0;
  if (entry.old_index) {
    job.archive.seek(job.old.records[*entry.old_index].offset);
    const auto copy = [&](std::size_t max) { return to.write_from(job.archive, max); };
    if (chunk_ladder(copy, size, small_block_bytes, job.progress) == size) return;
    throw data_error("The archive was truncated during the copy.");
  }
  job.file.open_to_read(entry.file);
  const auto copy = [&](std::size_t max) { return to.write_from(job.file, max); };
  const std::int32_t copied = chunk_ladder(copy, size, small_block_bytes, job.progress);
  std::array<std::byte, 1> one_more;
  if (copied < size || job.file.read(one_more) > 0) {
    throw data_error(entry.file.shown, "has changed its size during the copy.");
  }
  job.file.close();
}

}  // namespace

std::vector<rewritten_entry> entries_of(const archive_index& index) {
  std::vector<rewritten_entry> entries;
  for (std::size_t i = 0; i + 1 < index.records.size(); ++i) {
    entries.push_back({index.records[i].name, i, {}});
  }
  return entries;
}

std::string add_entry(std::vector<rewritten_entry>& entries, const std::string& file_name,
                      const files::file_path& file) {
  const record_name name = stored_name(padded_name(file_name));
  const std::string key = key_of(name);
  const auto of_name = std::find_if(entries.rbegin(), entries.rend(), [&key](const auto& entry) {
    return key_of(entry.name) == key;
  });
  if (of_name != entries.rend()) {
    *of_name = {of_name->name, std::nullopt, file};
  } else {
    const auto next = std::find_if(entries.begin(), entries.end(),
                                   [&key](const auto& entry) { return key < key_of(entry.name); });
    entries.insert(next, {name, std::nullopt, file});
  }
  return name_with_blanks(name);
}

void rewrite_archive(const files::file_path& path, const archive_index& old,
                     const std::vector<rewritten_entry>& entries, const job_progress& progress) {
  files::binary_file output;
  files::file_writer to(output, path, {.mode = files::write_mode::durable});
  files::binary_file archive;
  files::binary_file file;
  open_unchanged(archive, path, old.stamp);
  refuse_other_bytes(path, old);
  const std::vector<dat_record> records = new_records(old, entries);
  const std::string index = index_bytes(records);
  output.write(std::as_bytes(std::span(index)));
  const rewriting job{old, archive, file, progress};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::int32_t size = records[i + 1].offset - records[i].offset;
    progress.on_file(i, name_with_blanks(entries[i].name), size);
    copy_entry(job, entries[i], size, output);
  }
  // Another program may have written to the archive or replaced it during the copy.
  to.keep([&] {
    open_unchanged(archive, path, old.stamp);
    archive.close();
  });
}

}  // namespace ostrane
