#pragma once

#include <span>
#include <string>
#include <vector>

#include "data/archive_format.h"
#include "data/job_progress.h"
#include "files/binary_file.h"

namespace ostrane {

constexpr const char* archive_name = "OSTRANE.DAT";

// The files of a new archive, in their order.
struct build_list {
  std::u8string folder;  // as messages show it
  std::vector<std::string> names;
  std::vector<files::file_path> paths;  // of the names
};

// A file of a build list, with its size and the offset of its entry in the archive.
// The archive's index is derived from these records.
struct make_record {
  std::int32_t size;    // bytes
  record_name name;     // as padded_name returns it
  std::int32_t offset;  // of the entry in the new archive
};

// Fills `files`, which has at least one element per name, and returns the index of the archive.
// Throws file_error, and data_error if there are too many files or too many bytes.
std::vector<dat_record> measure_files(const build_list& list, std::span<make_record> files);

// Writes the archive to an open file. `files` and `records` come from measure_files. Throws
// file_error, and data_error if the size of a file has changed.
void write_archive_to(files::binary_file& archive, const build_list& list,
                      std::span<const make_record> files, std::span<const dat_record> records,
                      const job_progress& progress);

// Writes the archive and replaces the old one atomically. If it is named OSTRANE.DAT, archives
// whose names differ from this in case only are deleted. `files` and `records` come from
// measure_files. Throws file_error, and data_error if the size of a file has changed; the old
// archive is then unchanged.
void write_archive(const build_list& list, std::span<const make_record> files,
                   std::span<const dat_record> records, const files::file_path& target,
                   const job_progress& progress);

}  // namespace ostrane
