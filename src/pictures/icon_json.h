#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/shp_format.h"

// The JSON that an export of an icon file writes beside its PNGs. docs/command.md describes its
// fields.
namespace ostrane {

struct exported_icon {
  std::optional<std::u8string> file;  // the PNG; nullopt if the icon cannot be drawn
  icon_head head;
  std::int32_t offset = 0;       // in the icon file; not read
  std::int32_t number = 0;       // from 1; 0 if unknown
  std::int32_t last_column = 0;  // the last column with a set cell, if the box ends before it
};

struct exported_icons {
  std::u8string name;  // of the entry
  shp_identifier identifier = {};
  int scale = 1;
  std::vector<exported_icon> icons;
};

std::string json_of(const exported_icons& exported);

}  // namespace ostrane
