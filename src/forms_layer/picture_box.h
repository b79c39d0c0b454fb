#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

class picture_array;

// A rectangle of pixels; empty if right <= left or bottom <= top.
struct pixel_area {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;

  bool empty() const { return right <= left || bottom <= top; }
  friend bool operator==(const pixel_area&, const pixel_area&) = default;
};

// A bitmap that the box keeps while it is hidden, moved or covered. The drawing area is the box
// without its border of one pixel on each side. Coordinates are pixels of the drawing area
// (ScaleMode 3). An unset pixel shows BackColor. The bitmap is allocated when the first pixel is
// set. Assigning BackColor or another size clears it.
class picture_box : public control {
 public:
  picture_box(container& parent_container, const design& as_designed, std::int32_t array_index);

  const std::int32_t Index;
  picture_array* array = nullptr;  // the array of this element, or null
  property<int, property_id::rect, control> ScaleMode{*this, 1};

  static constexpr colour unset = 0xFFFFFFFF;
  static constexpr std::int32_t border = 1;

  // Size of the drawing area in pixels, at least 0.
  std::int32_t columns() const { return columns_; }
  std::int32_t rows() const { return rows_; }

  // Unsets all pixels.
  void Cls();

  // Sets a pixel. A point outside the drawing area is ignored.
  void PSet(std::int32_t x, std::int32_t y, colour c) {
    if (x < 0 || y < 0 || x >= columns_ || y >= rows_) return;
    if (pixels_.empty()) allocate();
    pixels_[index_of(x, y)] = c;
    damage(x, y, x + 1);
  }

  // Sets the pixels x1 to x2 - 1 of row y1, clipped to the drawing area. `y2` is ignored.
  void Line(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t /*y2*/, colour c) {
    set_pixels(claim_pixels(x1, y1, x2), [c](std::size_t) { return c; });
  }

  // Sets `count` >= 0 pixels of row y from x to the right, clipped to the drawing area.
  // `colour_of(i)` returns the colour of pixel x + i.
  template <typename ColourOf>
  void PSet(std::int32_t x, std::int32_t y, std::int32_t count, ColourOf colour_of) {
    // Unsigned, as x can be any number. If x + count overflows, x2 is negative: no pixel is set.
    const auto left = static_cast<std::uint32_t>(x);
    const std::size_t clipped = x < 0 ? 0U - left : 0U;
    const auto x2 = static_cast<std::int32_t>(left + static_cast<std::uint32_t>(count));
    set_pixels(claim_pixels(x, y, x2), [&](std::size_t i) { return colour_of(clipped + i); });
  }

  // The colour of a pixel, or `unset`, also outside the drawing area.
  colour pixel(std::int32_t x, std::int32_t y) const;

  // All pixels, row by row; null if none is set.
  const colour* pixels() const { return pixels_.empty() ? nullptr : pixels_.data(); }

  // Returns the bounding box of all changes since the last call.
  pixel_area consume_damage();

  void on_assigned(property_id what, bool differs) override;

 private:
  // Most runs fit 16 pixels; a fixed trip count avoids a branch mispredict.
  static constexpr std::size_t short_run = 16;

  std::size_t index_of(std::int32_t x, std::int32_t y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(x);
  }
  void damage(std::int32_t x1, std::int32_t y, std::int32_t x2) {
    if (damaged_.empty()) {
      damaged_ = {x1, y, x2, y + 1};
      notify_screen(property_id::pixels);
      return;
    }
    if (x1 < damaged_.left) damaged_.left = x1;
    if (x2 > damaged_.right) damaged_.right = x2;
    if (y < damaged_.top) damaged_.top = y;
    if (y >= damaged_.bottom) damaged_.bottom = y + 1;
  }
  // Clips x1 to x2 - 1 of row y, marks the rest as damaged and returns it.
  std::span<colour> claim_pixels(std::int32_t x1, std::int32_t y, std::int32_t x2) {
    if (y < 0 || y >= rows_) return {};
    const std::int32_t first = x1 > 0 ? x1 : 0;
    const std::int32_t end = x2 < columns_ ? x2 : columns_;
    if (first >= end) return {};
    if (pixels_.empty()) allocate();
    damage(first, y, end);
    return {pixels_.data() + index_of(first, y), static_cast<std::size_t>(end - first)};
  }
  template <typename ColourOf>
  void set_pixels(std::span<colour> row, ColourOf colour_of) {
    const std::size_t count = row.size();
    colour* to = row.data();
    if (count == 0) return;
    const colour* const end = pixels_.data() + pixels_.size();
    if (count > short_run || end - to < static_cast<std::ptrdiff_t>(short_run)) {
      for (std::size_t i = 0; i < count; ++i) to[i] = colour_of(i);
      return;
    }
    for (std::size_t i = 0; i < short_run; ++i) {
      const colour now = colour_of(i < count ? i : 0);
      to[i] = i < count ? now : to[i];
    }
  }
  void allocate();
  void apply_size();

  std::int32_t columns_ = 0;
  std::int32_t rows_ = 0;
  std::vector<colour> pixels_;
  pixel_area damaged_;
};

}  // namespace forms_layer
