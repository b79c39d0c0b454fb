#include "data/icon_file.h"

#include <algorithm>

#include "data/icon_decoder.h"

namespace ostrane {

namespace {

struct picture_canvas {
  picture& drawn;

  // Clips `count` cells at `column` to the picture. Sets `clipped` to the number cut off at the
  // left.
  std::span<std::int16_t> cells(std::int64_t column, std::int32_t row, std::int32_t count,
                                std::size_t& clipped) const {
    if (row < 0 || row >= drawn.rows()) return {};
    const std::int64_t from = std::clamp<std::int64_t>(column, 0, drawn.columns());
    const std::int64_t to = std::clamp<std::int64_t>(column + count, 0, drawn.columns());
    clipped = static_cast<std::size_t>(from - std::min(column, from));
    return drawn.row(row).subspan(static_cast<std::size_t>(from),
                                  static_cast<std::size_t>(to - from));
  }
  void run(std::int32_t column, std::int32_t row, std::int32_t count, std::uint8_t index) const {
    std::size_t clipped = 0;
    const auto to = cells(column, row, count, clipped);
    std::fill(to.begin(), to.end(), std::int16_t{index});
  }
  void pixels(std::int32_t column, std::int32_t row, std::int32_t count,
              const std::byte* indices) const {
    std::size_t clipped = 0;
    const auto to = cells(column, row, count, clipped);
    for (std::size_t i = 0; i < to.size(); ++i) {
      to[i] = std::to_integer<std::int16_t>(indices[clipped + i]);
    }
  }
};

// The head may be cut by the end of the icon file.
bool read_head(files::binary_file& file, const icon_file& from, std::int32_t position,
               icon_head& head) {
  return position <= from.end && read_icon_head(file, position, head);
}

bool can_be_drawn(const icon_head& head) {
  return classify_icon(head) == icon_kind::drawable && has_picture(head);
}

}  // namespace

icon_file read_icon_file(files::binary_file& file, std::int32_t start, std::int32_t end) {
  icon_file found = {.start = start, .end = end, .head = {}, .positions = {}};
  const std::int64_t size = std::min<std::int64_t>(end, file.size()) - start;
  if (start < 0 || size < std::int64_t{shp_head_size}) return found;
  read_shp_head(file, start, found.head);
  const std::int64_t room = (size - std::int64_t{shp_head_size}) / std::int64_t{shp_dir_entry_size};
  const std::int64_t count =
      std::min<std::int64_t>({std::max(found.head.icon_count, 0), max_icons_per_file, room});
  found.positions.resize(static_cast<std::size_t>(count));
  read_icon_positions(file, start, found.positions);
  return found;
}

std::int64_t columns_of(const icon_head& head) { return std::int64_t{head.no_of_cols} + 1; }

std::int64_t rows_of(const icon_head& head) { return std::int64_t{head.no_of_rows} + 1; }

bool has_picture(const icon_head& head) {
  return columns_of(head) > 0 && rows_of(head) > 0 &&
         columns_of(head) * rows_of(head) <= max_picture_cells;
}

std::int64_t count_picture_cells(files::binary_file& file, const icon_file& from) {
  std::int64_t cells = 0;
  for (const std::int32_t position : from.positions) {
    icon_head head;
    if (!read_head(file, from, position, head) || !can_be_drawn(head)) continue;
    cells += columns_of(head) * rows_of(head);
  }
  return cells;
}

picture read_icon_picture(icon_stream& stream, files::binary_file& file, const icon_file& from,
                          const icon_head& head, std::int32_t position) {
  picture drawn(static_cast<int>(columns_of(head)), static_cast<int>(rows_of(head)));
  picture_canvas canvas{drawn};
  begin_stream(stream, stream_size(head, position, from.end));
  icon_decoder(stream, file, head, canvas).decode();
  return drawn;
}

stored_icon read_stored_icon(icon_stream& stream, files::binary_file& file, const icon_file& from,
                             std::size_t index) {
  stored_icon icon;
  const std::int32_t position = from.positions[index];
  icon.is_there = read_head(file, from, position, icon.head);
  if (!icon.is_there || !can_be_drawn(icon.head)) return icon;
  icon.drawn = read_icon_picture(stream, file, from, icon.head, position);
  icon.is_cut = stream.stream_ended && from.end - position > max_stream_bytes(icon.head);
  return icon;
}

}  // namespace ostrane
