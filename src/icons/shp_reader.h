#pragma once

namespace ostrane {

// Reads head and directory of the entry `selected_index` from the open archive (file 1) into
// `shp_head` and `icon_positions`; `directory_read` becomes true. More icons than `icon_positions`
// holds are cut to its size, with a message; a head that cannot be read gives a message and no
// icons.
void read_directory();

// Reads the head of icon `icon_number` into `icon_header`, sets `entry_bytes_left` and empties the
// read buffer; the file then stands on the first byte of the icon's stream. If there is no such
// place in the file, a message says so and `series_full` becomes true.
void read_current_icon_head();

// The message about the icon of `icon_header`; `is_last` adds that further ones come without one.
void report_refused_icon(bool is_last);

}  // namespace ostrane
