#pragma once

#include <string>
#include <vector>

#include "data/picture.h"
#include "data/shp_format.h"

namespace ostrane {

// An icon as stored in the file. Its head can be changed before it is written, to make an icon that
// readers must refuse.
struct shp_icon {
  icon_head head;
  std::string stream;  // one byte per character
};

// The head of an icon for a picture. Its data box is the smallest that contains all set cells, or
// the first cell alone if none is set.
icon_head head_of(const picture& drawn);

// The shortest run-length stream that paints the set cells of the picture. No set cell may be
// above, below or left of the data box of `head`. The box can begin outside the picture.
std::string packed(const picture& drawn, const icon_head& head);

shp_icon make_icon(const picture& drawn);

// The identifier of new icon files.
constexpr shp_identifier own_identifier = {'I', 'C', 'O', 'N'};

// The bytes of an icon file: head, directory, icons. If `shares_icons`, equal icons are stored
// once. Throws data_error if it would be larger than 2 GB.
std::string shp_file(const std::vector<shp_icon>& icons,
                     const shp_identifier& identifier = own_identifier, bool shares_icons = false);
std::string shp_file(const std::vector<picture>& pictures);

}  // namespace ostrane
