#pragma once

#include <functional>
#include <string>

#include "data/shiplist.h"
#include "files/file_path.h"
#include "files/system_calls.h"

namespace ostrane {

// The names of an archive, the end record included.
struct name_list {
  std::int32_t count = 0;
  // For a number that no row has, "".
  std::function<const std::string&(std::int32_t row)> name;
  files::file_identity archive = {};  // of the archive's file, which no list is written over
};

// Walks the names of an archive and a sorted shiplist side by side and writes what only one side
// has to the report file. Throws file_error.
void write_compare_report(const files::file_path& path, const name_list& archive,
                          shiplist_comparison& comparison);

// Writes the names, one per line. Throws file_error.
void write_name_list(const files::file_path& path, const name_list& archive);

}  // namespace ostrane
