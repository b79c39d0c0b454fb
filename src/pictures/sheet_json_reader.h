#pragma once

#include <optional>
#include <string>
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

// Returns null if the text is the JSON of an icon file, which `exported` is then set to. Throws
// data_error, which names `shown`, if it is neither, or if a frame is rotated.
std::optional<sheet_layout> read_sheet_json(const std::string& text, const std::u8string& shown,
                                            exported_icons& exported);

}  // namespace ostrane
