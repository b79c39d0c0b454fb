#include "data/sheet_frame.h"

#include <algorithm>

#include "data/data_error.h"
#include "data/icon_file.h"
#include "files/code_page.h"

namespace ostrane {

namespace {

// Throws data_error if the grid would have too many cells.
sheet empty_sheet_for(const std::vector<picture>& pictures) {
  sheet all;
  for (const picture& drawn : pictures) {
    all.cell_width = std::max(all.cell_width, drawn.columns());
    all.cell_height = std::max(all.cell_height, drawn.rows());
  }
  const auto count = static_cast<std::int64_t>(pictures.size());
  while (std::int64_t{all.columns} * all.columns < count) ++all.columns;
  const std::int64_t rows = all.columns == 0 ? 0 : (count + all.columns - 1) / all.columns;
  const std::int64_t width = std::int64_t{all.columns} * all.cell_width;
  const std::int64_t height = rows * all.cell_height;
  if (width * height > max_picture_cells) throw data_error("The sheet would be too large.");
  all.drawn = picture(static_cast<int>(width), static_cast<int>(height));
  return all;
}

}  // namespace

picture picture_of(const picture& whole, const sheet_frame& frame) {
  if (frame.x + frame.width > whole.columns() || frame.y + frame.height > whole.rows() ||
      frame.left + frame.width > frame.columns || frame.top + frame.height > frame.rows ||
      frame.columns < 1 || frame.rows < 1) {
    throw data_error("its frame " + files::from_utf8_lossy(frame.name) + " is outside the picture");
  }
  picture drawn(frame.columns, frame.rows);
  for (int row = 0; row < frame.height; ++row) {
    const auto from =
        whole.row(frame.y + row)
            .subspan(static_cast<std::size_t>(frame.x), static_cast<std::size_t>(frame.width));
    std::copy(from.begin(), from.end(), drawn.row(frame.top + row).begin() + frame.left);
  }
  return drawn;
}

std::vector<sheet_frame> frames_of_grid(const picture& whole, int columns, int rows) {
  if (whole.columns() % columns != 0 || whole.rows() % rows != 0) {
    throw data_error("its " + std::to_string(whole.columns()) + " by " +
                     std::to_string(whole.rows()) + " pixels are no multiples of the grid");
  }
  const int width = whole.columns() / columns;
  const int height = whole.rows() / rows;
  std::vector<sheet_frame> frames;
  frames.reserve(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
  for (int i = 0; i < columns * rows; ++i) {
    frames.push_back({.name = {},
                      .x = i % columns * width,
                      .y = i / columns * height,
                      .width = width,
                      .height = height,
                      .columns = width,
                      .rows = height});
  }
  return frames;
}

picture fitted(picture drawn, const icon_head& head) {
  if (!has_picture(head)) return drawn;
  picture small(static_cast<int>(columns_of(head)), static_cast<int>(rows_of(head)));
  for (int row = 0; row < drawn.rows(); ++row) {
    for (int column = 0; column < drawn.columns(); ++column) {
      if (!drawn.is_set(column, row)) continue;
      if (column >= small.columns() || row >= small.rows()) return drawn;
      small.row(row)[static_cast<std::size_t>(column)] = drawn.at(column, row);
    }
  }
  return small;
}

frame_offset offset_of_frame(const sheet& all, std::size_t number) {
  const int n = static_cast<int>(number);
  return {n % all.columns * all.cell_width, n / all.columns * all.cell_height};
}

sheet sheet_of(const std::vector<picture>& pictures) {
  sheet all = empty_sheet_for(pictures);
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const frame_offset to = offset_of_frame(all, i);
    for (int row = 0; row < pictures[i].rows(); ++row) {
      const auto cells = pictures[i].row(row);
      std::copy(cells.begin(), cells.end(), all.drawn.row(to.top + row).begin() + to.left);
    }
  }
  return all;
}

}  // namespace ostrane
