#include "data/archive_builder.h"

#include <array>

#include "data/chunk_ladder.h"
#include "data/data_error.h"
#include "data/new_index.h"
#include "files/file_system.h"
#include "files/file_writer.h"

namespace ostrane {

namespace {

void copy_file(const build_list& list, std::size_t index, std::int32_t size,
               files::binary_file& source, files::binary_file& archive,
               const job_progress& progress) {
  const std::string& name = list.names[index];
  std::int16_t small_block_bytes = 0;
  source.open_to_read(list.paths[index]);
  progress.on_file(index, name, size);
  const auto copy = [&](std::size_t max) { return archive.write_from(source, max); };
  const std::int32_t copied = chunk_ladder(copy, size, small_block_bytes, progress);
  std::array<std::byte, 1> one_more;
  if (copied < size || source.read(one_more) > 0) {
    throw data_error(list.paths[index].shown, "has changed its size during the copy.");
  }
  source.close();
}

// `end` is the offset after the last entry.
std::vector<dat_record> index_of(std::span<const make_record> files, std::int32_t end) {
  std::vector<dat_record> records;
  records.reserve(files.size() + 1);
  for (const make_record& file : files) {
    records.push_back({.offset = file.offset, .name = stored_name(file.name)});
  }
  records.push_back({.offset = end, .name = {}});
  return records;
}

}  // namespace

std::vector<dat_record> measure_files(const build_list& list, std::span<make_record> files) {
  if (list.names.size() > max_files) {
    throw data_error(list.folder, "has " + std::to_string(list.names.size()) +
                                      " files. An archive holds at most " +
                                      std::to_string(max_files) + ".");
  }
  std::int32_t next_offset = first_entry_offset(list.names.size());
  for (std::size_t i = 0; i < list.names.size(); ++i) {
    const std::int64_t size = files::file_size(list.paths[i]);
    if (next_offset + size > INT32_MAX) {
      throw data_error(
          list.paths[i].shown,
          "would make the archive larger than 2 GB, which is the most that it can be.");
    }
    files[i] = {.size = static_cast<std::int32_t>(size),
                .name = padded_name(list.names[i]),
                .offset = next_offset};
    next_offset += files[i].size;
  }
  return index_of(files.first(list.names.size()), next_offset);
}

void write_archive_to(files::binary_file& archive, const build_list& list,
                      std::span<const make_record> files, std::span<const dat_record> records,
                      const job_progress& progress) {
  const std::string index = index_bytes(records);
  archive.write(std::as_bytes(std::span(index)));
  files::binary_file source;
  for (std::size_t i = 0; i < list.names.size(); ++i) {
    copy_file(list, i, files[i].size, source, archive, progress);
  }
}

void write_archive(const build_list& list, std::span<const make_record> files,
                   std::span<const dat_record> records, const files::file_path& target,
                   const job_progress& progress) {
  files::binary_file archive;
  // The game has one archive.
  const bool is_game_archive = target.system.filename() == archive_name;
  files::file_writer to(archive, target,
                        {.mode = files::write_mode::durable,
                         .replaces_read_only = true,
                         .is_only_spelling = is_game_archive});
  write_archive_to(archive, list, files, records, progress);
  to.keep();
}

}  // namespace ostrane
