#pragma once

#include <functional>
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
  std::string folder;  // for messages: they print it before the name
  std::vector<std::string> names;
  std::function<files::file_path(const std::string& name)> path_of;
};

// Reads the sizes of the files and returns the index of their archive. `files` has an element for
// each file. Throws file_error, and data_error if there are too many files or too many bytes.
std::vector<dat_record> measure_files(const build_list& list, std::span<make_record> files);

// Writes the archive to an open file. `files` and `records` come from measure_files. Throws
// file_error, and data_error if a file has changed its size.
void write_archive_to(files::binary_file& archive, const build_list& list,
                      std::span<const make_record> files, std::span<const dat_record> records,
                      const job_progress& progress);

// Writes the archive and replaces the old one atomically. Other spellings of its name are deleted.
// `files` and `records` come from measure_files. Throws file_error, and data_error if a file has
// changed its size. The old archive is unchanged then.
void write_archive(const build_list& list, std::span<const make_record> files,
                   std::span<const dat_record> records, const files::file_path& target,
                   const job_progress& progress);

}  // namespace ostrane
