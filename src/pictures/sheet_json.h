#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/picture.h"
#include "pictures/icon_json.h"

// The JSON that sprite editors write beside a sheet: `frames` as an array or an object.
namespace ostrane {

struct sheet_frame {
  std::u8string name;
  int x = 0;  // on the sheet
  int y = 0;
  int width = 0;
  int height = 0;
  int left = 0;  // in the picture
  int top = 0;
  int columns = 0;  // of the picture
  int rows = 0;
};

struct sheet_layout {
  std::u8string image;  // the name of the PNG, or ""
  std::vector<sheet_frame> frames;
  std::optional<exported_icons> exported;  // if the JSON is of an export; `file` is the frame
};

// Returns null if the text is the JSON of an icon file, which `exported` is then set to. Throws
// data_error, which names `shown`, if it is neither, or if a frame is rotated.
std::optional<sheet_layout> read_sheet_json(const std::string& text, const std::u8string& shown,
                                            exported_icons& exported);

// Cuts a picture out of a sheet. Throws data_error if the frame is not inside both.
picture picture_of(const picture& sheet, const sheet_frame& frame);

// The frames of a grid of equal cells, row by row. Throws data_error if the sides are no multiples.
std::vector<sheet_frame> frames_of_grid(const picture& sheet, int columns, int rows);

}  // namespace ostrane
