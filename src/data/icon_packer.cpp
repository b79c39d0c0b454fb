#include "data/icon_packer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "data/data_error.h"
#include "data/row_packer.h"

// shp_format.h tells the bytes of an icon file, icon_decoder.h those of a stream.
namespace ostrane {
namespace {

void append(std::string& to, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) to += static_cast<char>(value >> (8 * i) & 0xFFU);
}
void append16(std::string& to, std::int16_t value) {
  append(to, static_cast<std::uint16_t>(value), 2);
}
void append32(std::string& to, std::int32_t value) {
  append(to, static_cast<std::uint32_t>(value), 4);
}

void append_icon(std::string& to, const shp_icon& icon) {
  append16(to, icon.head.no_of_rows);
  append16(to, icon.head.no_of_cols);
  append32(to, icon.head.spare);
  append32(to, icon.head.col_start);
  append32(to, icon.head.row_start);
  append32(to, icon.head.col_end);
  append32(to, icon.head.row_end);
  to += icon.stream;
}

}  // namespace

icon_head head_of(const picture& drawn) {
  icon_head head{static_cast<std::int16_t>(drawn.rows() - 1),
                 static_cast<std::int16_t>(drawn.columns() - 1),
                 drawn.columns(),
                 drawn.rows(),
                 -1,
                 -1};
  for (int row = 0; row < drawn.rows(); ++row) {
    const auto cells = drawn.row(row);
    const auto is_set = [](std::int16_t cell) { return cell != picture::unset; };
    const auto first = std::find_if(cells.begin(), cells.end(), is_set);
    if (first == cells.end()) continue;
    const auto after = std::find_if(cells.rbegin(), cells.rend(), is_set).base();
    head.col_start = std::min(head.col_start, static_cast<std::int32_t>(first - cells.begin()));
    head.col_end = std::max(head.col_end, static_cast<std::int32_t>(after - cells.begin()) - 1);
    head.row_start = std::min(head.row_start, row);
    head.row_end = row;
  }
  if (head.row_end < 0) head.col_start = head.row_start = head.col_end = head.row_end = 0;
  return head;
}

std::string packed(const picture& drawn, const icon_head& head) {
  std::string stream;
  row_packer packer;
  const std::int32_t outside = std::max(-head.col_start, 0);
  const auto first = static_cast<std::size_t>(std::clamp(head.col_start, 0, drawn.columns()));
  for (std::int32_t row = head.row_start; row <= head.row_end; ++row) {
    if (row < 0) {
      stream += '\0';
    } else {
      packer.pack(outside, drawn.row(row).subspan(first), stream);
    }
  }
  return stream;
}

shp_icon make_icon(const picture& drawn) {
  const icon_head head = head_of(drawn);
  return {head, packed(drawn, head)};
}

std::string shp_file(const std::vector<shp_icon>& icons, const shp_identifier& identifier,
                     bool shares_icons) {
  std::string directory;
  std::string bodies;
  std::unordered_map<std::string, std::size_t> known;
  const std::size_t first = shp_head_size + shp_dir_entry_size * icons.size();
  for (const shp_icon& icon : icons) {
    std::size_t offset = first + bodies.size();
    std::string body;
    append_icon(body, icon);
    if (shares_icons) offset = known.emplace(body, offset).first->second;
    if (offset == first + bodies.size()) bodies += body;
    if (first + bodies.size() > std::size_t{INT32_MAX}) {
      throw data_error(
          "The icon file would be larger than 2 GB, which is the most that it can be.");
    }
    append32(directory, static_cast<std::int32_t>(offset));
    append32(directory, 0);
  }
  std::string file(identifier.begin(), identifier.end());
  append32(file, static_cast<std::int32_t>(icons.size()));
  return file + directory + bodies;
}

std::string shp_file(const std::vector<picture>& pictures) {
  std::vector<shp_icon> icons;
  icons.reserve(pictures.size());
  for (const picture& drawn : pictures) icons.push_back(make_icon(drawn));
  return shp_file(icons);
}

}  // namespace ostrane
