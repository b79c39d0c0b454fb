#pragma once

#include <string>
#include <vector>

#include "data/picture.h"
#include "data/shp_format.h"

namespace ostrane {

// An icon as stored in an icon file. Callers may set an invalid head, to make an icon that is not
// drawable.
struct shp_icon {
  icon_head head;
  std::string stream;  // one byte per character
};

// Returns the head for a picture. The data box is the bounding box of the set cells, or the first
// cell if no cell is set.
icon_head head_of(const picture& drawn);

// Returns the last column with a set cell, or -1.
std::int32_t last_set_column(const picture& drawn);

// Returns the shortest run-length stream that paints the set cells of the picture. No set cell may
// lie above, below or left of the data box of `head`. The box may begin outside the picture.
std::string packed(const picture& drawn, const icon_head& head);

shp_icon make_icon(const picture& drawn);

// The identifier of new icon files.
constexpr shp_identifier default_identifier = {'I', 'C', 'O', 'N'};

// Returns an icon file: head, directory, icons. Throws data_error if it would be larger than 2 GB.
std::string shp_file(const std::vector<shp_icon>& icons,
                     const shp_identifier& identifier = default_identifier);
std::string shp_file(const std::vector<picture>& pictures);

// The same with identical icons stored once.
std::string shared_shp_file(const std::vector<shp_icon>& icons, const shp_identifier& identifier);

}  // namespace ostrane
