#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "files/file_path.h"
#include "files/system_calls.h"

namespace ostrane {

// The names of an archive, the end record included.
struct name_list {
  std::int32_t count = 0;
  // Returns "" for a row that does not exist.
  std::function<const std::string&(std::int32_t row)> name;
  files::file_identity archive = {};  // of its file, which a list must not overwrite
};

// Writes the names, one per line. Throws file_error.
void write_name_list(const files::file_path& path, const name_list& archive);

}  // namespace ostrane
