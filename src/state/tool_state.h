#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "data/archive_format.h"
#include "data/icon_export.h"
#include "data/icon_names.h"
#include "data/icon_stream.h"
#include "data/palette.h"
#include "data/shiplist.h"
#include "data/shp_format.h"
#include "files/binary_file.h"
#include "forms_layer/colour.h"

namespace ostrane {

using flag = std::int16_t;
constexpr flag flag_true = -1;
constexpr flag flag_false = 0;

constexpr std::int32_t max_slots = 9999;

// A file of the archive built last.
struct make_record {
  std::int32_t size;    // bytes
  record_name name;     // as padded_name returns it
  std::int32_t offset;  // of the entry in the archive
};

// The numbers of the icon on a slot, for its report.
struct icon_data_record {
  std::int32_t cols;
  std::int32_t rows;
  std::int32_t first_col;
  std::int32_t last_col;
  std::int32_t first_row;
  std::int32_t last_row;
};

// The state of the tool. Every handler and procedure reads and writes it directly. Lengths are
// twips. Arrays that count from 1 leave element 0 unused. Large arrays have no initialiser: static
// storage is already zero, and clearing it again would slow the start.
struct tool_state_record {
  std::filesystem::path app_path;  // folder of the running program
  std::string program_title;       // caption of the main window

  icon_stream stream;  // of the current icon

  std::int32_t game_pal_offset = 0;  // of GAME.PAL in the latest archive that had one; 0 before
  ostrane::stored_palette stored_palette = {};

  std::int32_t record_count = 0;  // records of the index, end record included
  std::array<dat_record, max_records> dat_index;
  std::array<make_record, max_records> make_index;
  // Always equal to archive_path. The index is read from archive_path, entries from this one.
  std::string archive_path_copy;
  // True while dat_index and List1 hold the index of the file at archive_path. The stamp is that of
  // the file when its index was read; it stays if another archive cannot be read.
  flag archive_is_open = flag_false;
  files::file_stamp archive_stamp;
  files::binary_file archive_file;  // open only while a command reads entries

  ostrane::shp_head shp_head;
  ostrane::icon_head icon_header;     // of the current icon
  std::int32_t selected_index = 0;    // index in dat_index of the row clicked in List1
  std::int32_t directory_index = -1;  // index in dat_index of the entry in icon_positions, or -1
  std::string archive_path;

  std::array<forms_layer::colour, 256> colour_table = {};

  icon_exporter export_icons = nullptr;  // null if the program was built without it
  std::int32_t menu_target = 0;          // row of List1 or slot on which a context menu was opened
  std::vector<std::int32_t> menu_rows;   // the entries of a context menu for several, ascending

  std::array<std::int32_t, max_icons_per_file + 1> icon_positions;  // 1-based file positions
  std::int16_t icon_number = 0;                                     // of the current icon, from 1
  std::int16_t slots_loaded = 0;  // highest loaded index of s16_image; only grows
  std::int16_t twips_per_pixel_x = 0;
  std::int16_t twips_per_pixel_y = 0;

  flag browse_ready = flag_false;  // a motion was started: Command3 and Command4 step
  std::int16_t shown_slot = 0;     // the slot from which Prev and Next step
  std::int16_t loop_counter = 0;   // slot that the motion shows
  std::int16_t motion_last_slot = 0;
  flag motion_loops = flag_false;  // until it is stopped

  std::int32_t next_slot_left = 0;
  std::int32_t next_slot_top = 0;
  std::int32_t slot_gap = 0;
  std::int32_t row_height = 0;  // of the tallest slot of the current row

  flag series_full = flag_false;     // no further icon is drawn in this series
  flag directory_read = flag_false;  // shp_head and icon_positions are those of the shown file
  std::int16_t next_icon = 0;        // number of the next icon to draw, from 1
  std::int16_t current_slot = 0;     // index in s16_image of the slot being drawn
  // Not a count: the last slot of the series drawn last. It shows nothing if its icon did not fit.
  std::int16_t slots_drawn = 0;
  std::int32_t series_first_icon = 0;  // number of the icon in slot 1
  // Number of the last icon placed in the series, despite its name; 0 before.
  std::int32_t series_next_icon = 0;
  flag slot_fits = flag_false;  // false after place_icon_slot if the slot does not fit into Frame1
  // A damaged file may hold thousands of bad icons, so a series reports a limited number.
  std::int16_t refusals_reported = 0;

  bool form2_was_opened = false;

  std::vector<icon_name_pair> icon_names;  // rows counted from 1
  std::array<icon_data_record, max_slots + 1> slot_data;
  std::int16_t max_icons = 0;  // max slots per series

  shiplist_comparison comparison;
};

extern tool_state_record tool_state;

// Resets all fields to the values of a new process.
void reset_state();

}  // namespace ostrane
