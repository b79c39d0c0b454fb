#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "files/file_writer.h"

namespace ostrane {

// Where the files of an export go, and what they are read from.
struct export_output {
  files::binary_file& archive;
  files::file_stamp stamp = {};  // of the archive
  std::function<files::file_path(const std::u8string& name)> target;
  bool replaces = true;  // otherwise files that exist are refused
  // Called before each file is written. If it returns false the file is left out. May be null.
  std::function<bool(const files::file_path& target)> may_write = {};
  files::binary_file file = {};
};

files::write_rules rules_of(const export_output& output);

// Writes a file atomically, unless `may_write` leaves it out. Throws data_error if the archive has
// changed, and file_error.
void write_export(export_output& output, const std::u8string& name, std::string_view bytes);

}  // namespace ostrane
