#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "data/sheet_frame.h"
#include "pictures/icon_json.h"

// The JSON that sprite editors write beside a sheet: `frames` as an array or an object.
namespace ostrane {

struct sheet_layout {
  std::u8string image;  // the name of the PNG, or ""
  std::vector<sheet_frame> frames;
  std::optional<exported_icons> exported;  // if the JSON is of an export; `file` is the frame
};

using export_json = std::variant<sheet_layout, exported_icons>;

// Reads the JSON of a sheet or of an icon file. Throws data_error, which names `shown`, if it is
// neither, or if a frame is rotated.
export_json read_export_json(const std::string& text, const std::u8string& shown);

}  // namespace ostrane
