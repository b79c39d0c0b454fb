#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/colour_finder.h"
#include "data/new_icon.h"
#include "data/old_icons.h"
#include "files/failure.h"

namespace ostrane::command {

// An icon to make: from a picture, or only from a known head if the icon is not drawable.
struct planned_icon {
  std::optional<files::file_path> png = {};  // read when the icon is made
  std::optional<picture> marked = {};        // or else a part of a picture that is read already
  bool may_be_cut = false;    // to the known size: cells and frames of one size may be larger
  bool is_grid_cell = false;  // unset cells at the end of a grid are no icons
  std::optional<known_icon> known = {};
  std::optional<std::size_t> old_index = {};  // in the icon file with the old cells

  bool has_picture() const { return png || marked; }
};

struct import_plan {
  shp_identifier identifier = default_identifier;
  std::vector<planned_icon> icons = {};
  std::int64_t left_out = 0;  // icons of an old icon file without a picture, and those after them
  std::u8string entry = {};   // the icon file of a single JSON
  std::vector<files::file_path> inputs = {};
  std::vector<files::failure> faults = {};  // to report
};

struct grid_size {
  int columns = 0;  // 0 for no grid
  int rows = 0;
};

// Plans the icons of the sources: PNGs, sheets, GIFs, folders of PNGs, JSONs of an export or a
// sheet, and folders with such a JSON. If a folder has several, the one named `stem` is used
// (case-insensitive). Each PNG is cut into a grid. Throws file_error and data_error.
import_plan plan_of(const std::vector<std::string>& sources, const std::string& stem,
                    const grid_size& grid, colour_finder& colours);

// Keeps identifier, heads and order of an old icon file. Its drawable icons get the pictures of
// `plan` in order; its other icons keep their positions. The first drawable icon without a picture
// and all icons after it are left out. Throws file_error, and archive_changed if the file has
// changed.
void keep_layout(import_plan& plan, const old_icons& from);

// Removes the unset pictures at the end of a grid.
void remove_empty_end(import_plan& plan);

}  // namespace ostrane::command
