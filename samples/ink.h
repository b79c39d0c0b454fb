#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "data/picture.h"

namespace ostrane::samples {

// The 16 ramps of the palette, each of 16 shades from dark to light. Ramp r has the palette indices
// 16 * r to 16 * r + 15.
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

// A colour of the palette; `light` is clamped to 0..1.
struct ink {
  ramp hue;
  double light;
};

// The colour at a position in pixels from the top left corner; nullopt leaves the pixel unset.
using shader = std::function<std::optional<ink>(double x, double y)>;

// Shades each pixel by its middle. Shades between two of the ramp are dithered.
void paint(picture& to, const shader& look);
picture painted(int columns, int rows, const shader& look);

// The same for a rectangle, clipped to the picture; `look` counts from (left, top).
void paint_at(picture& to, int left, int top, int columns, int rows, const shader& look);

}  // namespace ostrane::samples
