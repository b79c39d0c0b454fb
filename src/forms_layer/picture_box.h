#pragma once

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

// A picture that is held in memory: it stays while the box is hidden, moved or covered. A border
// of one pixel runs all round, so the drawing area is two pixels smaller each way than the box.
// Coordinates are pixels of the drawing area (ScaleMode 3). A pixel is unset, and shows BackColor,
// or has a colour. Memory for the pixels is taken when the first one is set.
class picture_box : public control {
 public:
  picture_box(container& parent_container, const design& as_designed, std::int32_t array_index);

  const std::int32_t Index;
  picture_array* array = nullptr;  // the one it is an element of, if any
  property<int, property_id::place, control> ScaleMode{*this, 1};

  static constexpr colour unset = 0xFFFFFFFF;
  static constexpr std::int32_t border = 1;

  // Size of the drawing area in pixels; never negative.
  std::int32_t columns() const { return columns_; }
  std::int32_t rows() const { return rows_; }

  // Unsets all pixels.
  void Cls();

  // Sets one pixel; outside the drawing area nothing happens.
  void PSet(std::int32_t x, std::int32_t y, colour c) {
    if (x < 0 || y < 0 || x >= columns_ || y >= rows_) return;
    if (pixels_.empty()) allocate();
    pixels_[index_of(x, y)] = c;
    damage(x, y, x + 1);
  }

  // Sets the pixels x1 to x2 - 1 of a row; what lies outside the drawing area is lost.
  void Line(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t /*y2*/, colour c) {
    set_pixels(pixels_to_set(x1, y1, x2), [c](std::size_t) { return c; });
  }

  // PSet for `count` pixels of a row from x, y to the right; `colour_of` tells the colour of the
  // pixel by its number, from 0 on. `count` is not negative.
  template <typename ColourOf>
  void PSet(std::int32_t x, std::int32_t y, std::int32_t count, ColourOf colour_of) {
    // Unsigned, so that no x overflows. A sum past the largest number comes out below 0: no pixel.
    const auto left = static_cast<std::uint32_t>(x);
    const std::size_t lost = x < 0 ? 0U - left : 0U;
    const auto x2 = static_cast<std::int32_t>(left + static_cast<std::uint32_t>(count));
    set_pixels(pixels_to_set(x, y, x2),
               [&](std::size_t number) { return colour_of(lost + number); });
  }

  // The colour of a pixel of the drawing area, `unset` if it has none.
  colour pixel(std::int32_t x, std::int32_t y) const;

  // All pixels, row by row, `unset` among them; null while none was set since the last Cls.
  const colour* pixels() const { return pixels_.empty() ? nullptr : pixels_.data(); }

  // What was painted or unset since the screen last took it.
  pixel_area consume_damage();

  void written(property_id what, bool differs) override;

 private:
  // Most runs are no longer. A loop of a fixed length has no end that the processor could guess
  // wrong, which costs more than the pixels.
  static constexpr std::size_t short_run = 16;

  std::size_t index_of(std::int32_t x, std::int32_t y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(x);
  }
  void damage(std::int32_t x1, std::int32_t y, std::int32_t x2) {
    if (damaged_.empty()) {
      damaged_ = {x1, y, x2, y + 1};
      tell_screen(property_id::pixels);
      return;
    }
    if (x1 < damaged_.left) damaged_.left = x1;
    if (x2 > damaged_.right) damaged_.right = x2;
    if (y < damaged_.top) damaged_.top = y;
    if (y >= damaged_.bottom) damaged_.bottom = y + 1;
  }
  // Those of the pixels x1 to x2 - 1 of a row that the drawing area has, all to be set.
  std::span<colour> pixels_to_set(std::int32_t x1, std::int32_t y, std::int32_t x2) {
    if (y < 0 || y >= rows_) return {};
    const std::int32_t first = x1 > 0 ? x1 : 0;
    const std::int32_t behind = x2 < columns_ ? x2 : columns_;
    if (first >= behind) return {};
    if (pixels_.empty()) allocate();
    damage(first, y, behind);
    return {pixels_.data() + index_of(first, y), static_cast<std::size_t>(behind - first)};
  }
  template <typename ColourOf>
  void set_pixels(std::span<colour> row, ColourOf colour_of) {
    const std::size_t count = row.size();
    colour* to = row.data();
    if (count == 0) return;
    if (count > short_run || to + short_run > pixels_.data() + pixels_.size()) {
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
