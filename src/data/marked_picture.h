#pragma once

#include <array>
#include <span>

#include "data/colour_finder.h"
#include "data/picture.h"

// The readers of pictures mark the cells whose index is not certain, so that a part of a picture
// can be cut out before its cells are counted. A marked cell is an index plus marks, or unset.
namespace ostrane {

constexpr std::int16_t changed_mark = 0x100;  // the colour or the transparency changes
constexpr std::int16_t shared_mark = 0x200;   // other indices have the same colour
constexpr std::int16_t changed_unset = -2;    // the transparency changes

// A pixel that is more than half transparent is unset.
constexpr std::int16_t marked_cell(const found_colour& found, int alpha) {
  if (alpha < 0x80) return alpha == 0 ? picture::unset : changed_unset;
  const bool is_exact = found.is_exact && alpha == 0xFF;
  return static_cast<std::int16_t>(found.index + (is_exact ? 0 : changed_mark) +
                                   (is_exact && found.is_shared ? shared_mark : 0));
}

struct palette_entry {
  std::uint32_t colour = 0;
  int alpha = 0xFF;
};

// The cells for the indices of an indexed picture. An index is kept if both palettes have the same
// colour there. One without a colour is marked as changed.
std::array<std::int16_t, 256> marked_indices(std::span<const palette_entry> entries,
                                             colour_finder& colours);

struct settled_picture {
  picture drawn;
  std::int64_t changed = 0;  // cells with this mark
  std::int64_t shared = 0;
};

// Removes the marks. If the old picture has the same size, a cell whose colour is that of the old
// cell gets the old index. Otherwise counts the shared marks.
settled_picture settled(picture marked, const rgb_palette& palette, const picture* old);

}  // namespace ostrane
