#pragma once

#include <string>
#include <vector>

#include "data/picture.h"
#include "data/shp_format.h"

namespace ostrane {

// An icon as it will stand in the file. Every number of its head can be changed before it is
// written, to make an icon that a reader has to turn down.
struct shp_icon {
  icon_head head;
  std::string stream;  // one byte a character
};

// The head of an icon for a picture. Its data box is the smallest one with all set cells in it, and
// the first cell alone if no cell is set.
icon_head head_of(const picture& drawn);

// The shortest run-length stream that paints the set cells of the picture, of which none may lie
// above, below or left of the data box of `head`. The box may begin outside the picture.
std::string packed(const picture& drawn, const icon_head& head);

shp_icon make_icon(const picture& drawn);

// What new icon files begin with.
constexpr shp_identifier own_identifier = {'I', 'C', 'O', 'N'};

// The bytes of a whole icon file: head, directory, icons. Icons of the same bytes stand there once
// if `shares_icons`. Throws data_error if it would be larger than 2 GB.
std::string shp_file(const std::vector<shp_icon>& icons,
                     const shp_identifier& identifier = own_identifier, bool shares_icons = false);
std::string shp_file(const std::vector<picture>& pictures);

}  // namespace ostrane
