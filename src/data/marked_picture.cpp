#include "data/marked_picture.h"

#include <algorithm>

namespace ostrane {

std::array<std::int16_t, 256> marked_indices(std::span<const palette_entry> entries,
                                             colour_finder& colours) {
  std::array<std::int16_t, 256> cells = {};
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool is_there = i < entries.size();
    const palette_entry entry = is_there ? entries[i] : palette_entry{};
    const bool is_kept = is_there && colours.palette()[i] == entry.colour;
    found_colour found =
        is_kept ? found_colour{static_cast<std::uint8_t>(i), true} : colours.find(entry.colour);
    found.is_exact = found.is_exact && is_there;
    cells[i] = marked_cell(found, entry.alpha);
  }
  return cells;
}

namespace {

// The palette index of a marked cell; the old one if that has the same colour.
std::int16_t settled_cell(std::int16_t cell, std::int16_t old_cell, const rgb_palette& palette) {
  if (cell < 0) return picture::unset;
  cell &= 0xFF;
  const bool is_same =
      old_cell != picture::unset &&
      palette[static_cast<std::size_t>(cell)] == palette[static_cast<std::size_t>(old_cell)];
  return is_same ? old_cell : cell;
}

bool is_changed(std::int16_t cell) {
  return cell < 0 ? cell == changed_unset : (cell & changed_mark) != 0;
}

}  // namespace

settled_picture settled(picture marked, const rgb_palette& palette, const picture* old) {
  settled_picture result = {.drawn = std::move(marked)};
  picture& drawn = result.drawn;
  const bool is_known =
      old != nullptr && old->columns() == drawn.columns() && old->rows() == drawn.rows();
  for (int row = 0; row < drawn.rows(); ++row) {
    const std::int16_t* before = is_known ? old->row(row).data() : nullptr;
    const auto cells = drawn.row(row);
    // A row without marks that is the old one, as most are.
    if (before != nullptr && std::equal(cells.begin(), cells.end(), before)) continue;
    for (std::int16_t& cell : cells) {
      const std::int16_t old_cell = before == nullptr ? picture::unset : *before++;
      result.changed += is_changed(cell) ? 1 : 0;
      result.shared += !is_known && cell > 0 && (cell & shared_mark) != 0 ? 1 : 0;
      cell = settled_cell(cell, old_cell, palette);
    }
  }
  return result;
}

}  // namespace ostrane
