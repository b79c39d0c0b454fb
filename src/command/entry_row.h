#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "data/archive_index.h"
#include "data/entry_kind.h"
#include "files/binary_file.h"

// What a list says about the entries of an archive.
namespace ostrane::command {

struct entry_row {
  std::u8string name;
  std::int64_t size = 0;  // bytes
  std::int32_t offset = 0;
  entry_kind kind = entry_kind::other;
  std::optional<std::int32_t> icons;  // of an icon file that has a head
  std::u8string description;
};

// By icon_name_key.
using descriptions = std::unordered_map<std::string, std::u8string>;

// Returns the CSV file of descriptions that an argument names; "" is the installed one. Throws
// file_error if a named file cannot be opened.
files::file_path require_icon_names_file(const std::string& argument);

// Reads the descriptions of a CSV file, which may be missing.
descriptions read_descriptions(const files::file_path& icon_names);

// The name of entry `i`, which is all that a short list shows.
std::u8string shown_name(const archive_index& index, std::size_t i);

// All about entry `i`. Reads the head of an icon file from the archive.
entry_row row_of_entry(const archive_index& index, std::size_t i, files::binary_file& archive,
                       const descriptions& known);

// The indices of the entries by "name", "size", "offset" or "kind". Equal ones stay in the order of
// the archive; all do for another `order`.
std::vector<std::size_t> ordered_entries(const archive_index& index, const std::string& order);

}  // namespace ostrane::command
