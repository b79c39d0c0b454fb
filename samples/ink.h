#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "data/picture.h"

namespace ostrane::samples {

// The sixteen ramps of the palette, each of sixteen shades from dark to light. Ramp r holds the
// palette indices 16 * r to 16 * r + 15.
enum class ramp : std::uint8_t {
  grey,
  night,
  ocean,
  teal,
  leaf,
  moss,
  sand,
  earth,
  rust,
  flame,
  gold,
  rose,
  violet,
  ice,
  dusk,
  steel,
};

constexpr int ramp_count = 16;
constexpr int shade_count = 16;

// A colour of the palette: how light it is runs from 0 to 1 and is cut there.
struct ink {
  ramp hue;
  double light;
};

// What is seen at a place, in cells from the top left corner; nothing leaves the cell unset.
using shader = std::function<std::optional<ink>(double x, double y)>;

// Looks at the middle of each cell. Shades between two of the ramp are dithered.
void paint(picture& to, const shader& look);
picture painted(int columns, int rows, const shader& look);

// The same, into the cells from (left, top) on; `look` counts from there. What falls outside the
// picture is lost.
void paint_at(picture& to, int left, int top, int columns, int rows, const shader& look);

}  // namespace ostrane::samples
