#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/binary_file.h"
#include "pictures/new_icon.h"

namespace ostrane::command {

// An icon to make: from a PNG, or only from a known head if the icon is not drawable.
struct planned_icon {
  std::optional<files::file_path> png;
  std::optional<known_icon> known;
};

struct import_plan {
  shp_identifier identifier = default_identifier;
  std::vector<planned_icon> icons = {};
  std::int64_t left_out = 0;  // icons of an old icon file that have no PNG, and those after them
};

// Plans the icons of the sources: PNGs, folders of PNGs, JSONs of an export, and folders with such
// a JSON. If a folder has several, the one named `stem` is used (case-insensitive). Throws
// file_error and data_error.
import_plan plan_of(const std::vector<std::string>& sources, const std::string& stem);

// Takes identifier, heads and order from an old icon file. Its drawable icons get the PNGs of
// `plan` in order; its other icons keep their positions. The first drawable icon without a PNG and
// all icons after it are left out. Throws file_error and data_error.
import_plan plan_like(const import_plan& plan, const files::file_path& old_file);

}  // namespace ostrane::command
