#pragma once

#include <functional>
#include <string>

#include "files/file_path.h"

namespace ostrane {

// Receives the faults that a check finds. `entry` is "" for a fault of the archive itself.
using fault_sink = std::function<void(const std::string& entry, const std::string& fault)>;

// Reports every fault of an archive: of its index, the names and offsets in it, and of its icon
// files, palettes and texts. Reported names are in the code page. `on_entry` is called before the
// content of each entry is checked. Throws file_error if the archive cannot be read, and
// archive_changed if it changes meanwhile.
void check_archive(const files::file_path& path, const fault_sink& report,
                   const std::function<void(std::size_t index, std::size_t count,
                                            const std::string& name)>& on_entry);

}  // namespace ostrane
