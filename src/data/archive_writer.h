#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "data/archive_index.h"
#include "data/job_progress.h"
#include "data/skipped_file.h"
#include "files/file_writer.h"

namespace ostrane {

// What becomes an entry of a new archive: a file, an entry of the old archive, or other content.
struct entry_source {
  record_name name;        // of the new entry
  std::string shown_name;  // of the file or the entry, for messages
  files::file_path file = {};
  std::optional<std::size_t> old_index = {};        // null for a file
  std::shared_ptr<const std::string> content = {};  // of an old entry that changes

  bool is_file() const { return !old_index; }
};

struct old_archive {
  files::file_path path;
  archive_index index;
};

struct new_archive {
  std::vector<entry_source> entries = {};
  std::optional<old_archive> old = {};   // the archive that it replaces and takes entries from
  std::vector<dat_record> records = {};  // set by make_index or while it is written
};

// Returns the source for a file. The name of its entry is cut at 13 characters.
entry_source source_of_file(const std::string& file_name, files::file_path file);

// Reads an old archive and returns a new one with the same entries. Throws like read_archive_index.
new_archive copy_of_archive(const files::file_path& path);

// By name_key.
using entries_by_key = std::map<std::string, entry_source>;

// Inserts each of these entries before the first entry whose name sorts after it.
void insert_entries(new_archive& archive, const entries_by_key& added);

// Puts files into an archive as into a map, one after the other: each replaces the last entry of
// its name. If there is none, it is inserted.
void put_files(new_archive& archive, const std::vector<entry_source>& files);

// Returns the index of each entry whose name, without case, is that of an earlier entry, and the
// index of the latest such entry.
std::vector<std::pair<std::size_t, std::size_t>> equal_names(
    const std::vector<entry_source>& entries);

// Describes each of these entries of an archive.
std::vector<skipped_file> entries_of_equal_names(const new_archive& archive);

// Returns the native paths of the files that become entries.
std::vector<std::filesystem::path::string_type> file_paths(const new_archive& archive);

// Measures the sources and sets `records`. `on_entry` is called before each of them and may be
// null. Throws file_error, and data_error if there are too many entries or bytes, if an old entry
// exceeds the old archive, or if that has bytes outside its entries, which would be lost.
void make_index(new_archive& archive, const std::function<void(std::size_t index)>& on_entry = {});

// Writes an archive to an open file. Without records each file is measured when it is opened, and
// the index is written last; a stream needs them before. Throws like make_index, and data_error if
// the size of a file or the old archive has changed.
void write_archive_to(files::binary_file& to, new_archive& archive, const job_progress& progress);

// The same, but replaces `target` durably, which is the old archive if there is one. The mode of
// the rules is ignored.
void replace_archive(const files::file_path& target, new_archive& archive,
                     const job_progress& progress, files::write_rules rules = {});

}  // namespace ostrane
