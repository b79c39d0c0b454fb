#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/binary_file.h"
#include "pictures/new_icon.h"

namespace ostrane::command {

// An icon to be made: of a picture, or of a known head alone, which nothing can be drawn of.
struct planned_icon {
  std::optional<files::file_path> png;
  std::optional<known_icon> known;
};

struct import_plan {
  shp_identifier identifier = own_identifier;
  std::vector<planned_icon> icons;
};

// The icons for the sources: PNGs, folders of them, and the JSON of an export, also in its folder.
// Of several in one folder that counts whose name is `stem`, case ignored. Throws file_error and
// data_error.
import_plan plan_of(const std::vector<std::string>& sources, const std::string& stem);

// Takes identifier, heads and order from an old icon file: the pictures are those of its drawable
// icons, one after the other, and its other icons keep their places between them. Throws
// file_error.
import_plan plan_like(const import_plan& plan, const files::file_path& old_file);

}  // namespace ostrane::command
