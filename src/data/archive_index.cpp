#include "data/archive_index.h"

#include <array>
#include <string>

#include "files/code_page.h"
#include "files/little_endian.h"

namespace ostrane {

namespace {

[[noreturn]] void refuse(const files::file_path& path, const std::string& what) {
  throw data_error(path.shown, "cannot be read as an archive: " + what);
}

std::int32_t read_count(files::binary_file& file, const files::file_path& path) {
  std::array<std::byte, count_size> bytes;
  if (file.read(bytes) < bytes.size()) refuse(path, "it ends within the number of its records.");
  const std::int32_t count = files::int32_at(bytes, 0);
  if (count < 0 || count > max_records) {
    refuse(path, "it gives " + std::to_string(count) +
                     " as the number of its records, which is from 0 to " +
                     std::to_string(max_records) + ".");
  }
  if (file.size() < index_size(count)) {
    refuse(path, "it ends before the last of its " + std::to_string(count) + " records.");
  }
  return count;
}

}  // namespace

archive_index read_archive_index(const files::file_path& path) {
  files::binary_file file;
  file.open_to_read(path);
  return read_archive_index(file, path);
}

archive_index read_archive_index(files::binary_file& file, const files::file_path& path) {
  archive_index index = {.records = {}, .stamp = file.info().stamp};
  const std::int32_t count = read_count(file, path);
  index.records.resize(static_cast<std::size_t>(count));
  std::vector<std::byte> bytes(record_size * index.records.size());
  if (file.read(bytes) < bytes.size()) refuse(path, "it was truncated during the read.");
  std::span<const std::byte> rest = bytes;
  for (dat_record& record : index.records) {
    decode_record(rest.first<record_size>(), record);
    rest = rest.subspan(record_size);
  }
  if (file.info().stamp != index.stamp) {
    throw archive_changed(path.shown,
                          "cannot be read as an archive: it was written to during the read.");
  }
  return index;
}

bool is_sound(const archive_index& index) {
  std::int64_t least = index_size(std::ssize(index.records));
  for (const dat_record& record : index.records) {
    if (record.offset < least) return false;
    least = record.offset;
  }
  return !index.records.empty() && least <= index.stamp.size;
}

bool is_whole(const archive_index& index, std::size_t entry) {
  const entry_range range = range_of(index.records, static_cast<std::int32_t>(entry));
  return range.start >= 0 && range.end >= range.start && range.end <= index.stamp.size;
}

entry_range whole_entry(const archive_index& index, std::size_t entry) {
  if (!is_whole(index, entry)) {
    throw data_error(files::to_utf8("The entry " + name_with_blanks(index.records[entry].name)),
                     "is not contained in the archive with all its bytes.");
  }
  return range_of(index.records, static_cast<std::int32_t>(entry));
}

void open_unchanged(files::binary_file& file, const files::file_path& path,
                    const files::file_stamp& stamp) {
  file.open_to_read(path);
  if (file.info().stamp == stamp) return;
  file.close();
  throw archive_changed(path.shown, "has changed since it was read. Read it again.");
}

void require_unchanged(files::binary_file& archive, const files::file_stamp& stamp,
                       const std::string& job) {
  if (archive.info().stamp == stamp) return;
  throw archive_changed("The archive was written to during the " + job + ". Start the " + job +
                        " again.");
}

}  // namespace ostrane
