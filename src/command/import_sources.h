#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/binary_file.h"
#include "pictures/new_icon.h"

namespace ostrane::command {

// An icon to make: from a picture, or only from a known head that is not drawable.
struct planned_icon {
  std::optional<files::file_path> png;
  std::optional<known_icon> known;
};

struct import_plan {
  shp_identifier identifier = own_identifier;
  std::vector<planned_icon> icons;
};

// The icons for the sources: PNGs, folders of PNGs, and the JSON of an export or its folder. Of
// several JSON files in a folder, the one with the name `stem` is used; case is ignored. Throws
// file_error and data_error.
import_plan plan_of(const std::vector<std::string>& sources, const std::string& stem);

// Takes identifier, heads and order from an old icon file: its drawable icons get the pictures in
// order, and its other icons stay between them. Throws file_error.
import_plan plan_like(const import_plan& plan, const files::file_path& old_file);

}  // namespace ostrane::command
