#pragma once

#include <string>

namespace ostrane {

// Reads head and directory of the entry `selected_index` into `shp_head` and `icon_positions`; sets
// `directory_index` and `directory_read`. Reports a count above the size of `icon_positions` and
// uses that size; reports a head outside the file and leaves no icons. `archive_file` must be open.
// Throws file_error.
void read_directory();

// Reads the head of icon `icon_number` into `icon_header` and begins its stream: sets
// `entry_bytes_left` and empties the read buffer; the file position is then its first byte. Reports
// a position outside the file, and then returns false. `archive_file` must be open. Throws
// file_error.
bool begin_current_icon();

// The message about the refused icon of `icon_header`.
std::string refused_icon_text();

}  // namespace ostrane
