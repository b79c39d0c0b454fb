#include "forms_layer/picture_box.h"

#include <algorithm>
#include <utility>

#include "forms_layer/application.h"

namespace forms_layer {

picture_box::picture_box(container& parent_container, const design& as_designed,
                         std::int32_t array_index)
    : control(parent_container, control_kind::picture_box, as_designed), Index(array_index) {
  apply_size();
}

void picture_box::Cls() {
  // A larger buffer is freed, as thousands of boxes would keep too much memory.
  constexpr std::size_t max_kept_pixels = 16384;
  if (pixels_.capacity() > max_kept_pixels) {
    pixels_ = {};
  } else {
    pixels_.clear();
  }
  damaged_ = {0, 0, columns_, rows_};
  notify_screen(property_id::pixels);
}

colour picture_box::pixel(std::int32_t x, std::int32_t y) const {
  if (x < 0 || y < 0 || x >= columns_ || y >= rows_ || pixels_.empty()) return unset;
  return pixels_[index_of(x, y)];
}

pixel_area picture_box::consume_damage() { return std::exchange(damaged_, {}); }

void picture_box::on_assigned(property_id what, bool differs) {
  if (what == property_id::rect && differs) apply_size();
  if (what == property_id::back_color) Cls();
  control::on_assigned(what, differs);
}

void picture_box::allocate() {
  pixels_.assign(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), unset);
}

void picture_box::apply_size() {
  const std::int32_t columns = std::max(0, Width() / application.TwipsPerPixelX - 2 * border);
  const std::int32_t rows = std::max(0, Height() / application.TwipsPerPixelY - 2 * border);
  if (columns == columns_ && rows == rows_) return;
  columns_ = columns;
  rows_ = rows;
  damaged_ = {};
  pixels_.clear();
}

}  // namespace forms_layer
