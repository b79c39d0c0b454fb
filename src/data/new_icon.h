#pragma once

#include <optional>

#include "data/icon_packer.h"

namespace ostrane {

// What is known of an icon before its picture is read.
struct known_icon {
  icon_head head;
  std::int32_t last_column = 0;  // the last set column, which can be outside its box
};

// The icon for a picture. A known drawable head of the same size is kept, with its box enlarged if
// cells outside it are set; otherwise the box is the smallest. Throws data_error if the box begins
// so far outside the picture that its stream would exceed max_stream_bytes.
shp_icon new_icon(const picture& drawn, const std::optional<known_icon>& known);

}  // namespace ostrane
