#pragma once

#include <string>
#include <vector>

#include "data/sheet_frame.h"

namespace ostrane {

// The JSON of a sheet for sprite editors: an array of frames, meta, and `icons`, the JSON of the
// icon file, under the key `ostrane`. `names` are the names of the frames, `image` is the name of
// the PNG; `pace` is in hundredths of a second.
std::string json_of(const sheet& all, const std::vector<picture>& pictures,
                    const std::vector<std::u8string>& names, const std::u8string& image, int pace,
                    int scale, const std::string& icons);

}  // namespace ostrane
