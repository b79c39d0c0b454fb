#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "files/file_path.h"

namespace ostrane {

struct entry_difference {
  std::u8string name;
  std::optional<std::int64_t> old_size;  // in bytes; null if the archive lacks the entry
  std::optional<std::int64_t> new_size;
  // The 1-based numbers of the icons that differ; null for other entries, and if the pictures have
  // more than max_job_cells together.
  std::optional<std::vector<std::size_t>> icons;
};

// Returns the entries that only one archive has or whose bytes differ. Entries of one name are
// compared in their order. `on_step` is called often, with the number of old entries that are done
// and their count. Throws file_error and data_error.
std::vector<entry_difference> diff_archives(
    const files::file_path& old_archive, const files::file_path& new_archive,
    const std::function<void(std::size_t, std::size_t)>& on_step);

}  // namespace ostrane
