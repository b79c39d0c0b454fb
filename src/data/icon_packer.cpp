#include "data/icon_packer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>

#include "data/data_error.h"
#include "data/row_packer.h"
#include "files/little_endian.h"

// shp_format.h describes the icon file, icon_decoder.h the stream.
namespace ostrane {
namespace {

template <typename Number>
void append(std::string& to, Number value) {
  for (unsigned i = 0; i < sizeof value; ++i) to += static_cast<char>(value >> 8U * i & 0xFF);
}

std::string bytes_of(const shp_icon& icon) {
  std::string bytes;
  append(bytes, icon.head.no_of_rows);
  append(bytes, icon.head.no_of_cols);
  append(bytes, icon.head.spare);
  append(bytes, icon.head.col_start);
  append(bytes, icon.head.row_start);
  append(bytes, icon.head.col_end);
  append(bytes, icon.head.row_end);
  return bytes + icon.stream;
}

// An icon file whose directory is filled in as icons are added.
struct growing_file {
  std::string bytes;
  std::size_t entry = shp_head_size;  // offset of the next directory entry
};

// Equal icons need less room than is reserved for them.
constexpr std::size_t max_reserved = std::size_t{64} << 20U;

// Reserves room for the icons, as a growing text would be copied again and again.
growing_file file_without_icons(const shp_identifier& identifier,
                                const std::vector<shp_icon>& icons) {
  const std::size_t directory_end = shp_head_size + shp_dir_entry_size * icons.size();
  growing_file file = {.bytes = std::string(identifier.begin(), identifier.end())};
  append(file.bytes, static_cast<std::int32_t>(icons.size()));
  std::size_t size = directory_end;
  for (const shp_icon& icon : icons) size += icon_head_size + icon.stream.size();
  file.bytes.reserve(std::min(size, max_reserved));
  file.bytes.resize(directory_end);
  return file;
}

void add_entry(growing_file& file, std::size_t icon_offset) {
  files::put_int32(std::as_writable_bytes(std::span(file.bytes)), file.entry,
                   static_cast<std::int32_t>(icon_offset));
  file.entry += shp_dir_entry_size;
}

void add_icon(growing_file& file, const std::string& icon) {
  const std::size_t offset = file.bytes.size();
  file.bytes += icon;
  if (file.bytes.size() > std::size_t{INT32_MAX}) {
    throw data_error("The icon file would be larger than 2 GB, which is the most that it can be.");
  }
  add_entry(file, offset);
}

}  // namespace

std::int32_t last_set_column(const picture& drawn) {
  std::int32_t last = -1;
  for (int row = 0; row < drawn.rows(); ++row) {
    for (std::int32_t column = drawn.columns() - 1; column > last; --column) {
      if (drawn.is_set(column, row)) last = column;
    }
  }
  return last;
}

icon_head head_of(const picture& drawn) {
  icon_head head{static_cast<std::int16_t>(drawn.rows() - 1),
                 static_cast<std::int16_t>(drawn.columns() - 1),
                 drawn.columns(),
                 drawn.rows(),
                 last_set_column(drawn),
                 -1};
  if (head.col_end < 0) head.col_start = head.row_start = head.col_end = head.row_end = 0;
  for (int row = 0; row < drawn.rows(); ++row) {
    const auto cells = drawn.row(row);
    const auto is_set = [](std::int16_t cell) { return cell != picture::unset; };
    const auto first = std::find_if(cells.begin(), cells.end(), is_set);
    if (first == cells.end()) continue;
    head.col_start = std::min(head.col_start, static_cast<std::int32_t>(first - cells.begin()));
    head.row_start = std::min(head.row_start, row);
    head.row_end = row;
  }
  return head;
}

std::string packed(const picture& drawn, const icon_head& head) {
  std::string stream;
  row_packer packer;
  const std::int64_t outside = std::max<std::int64_t>(-std::int64_t{head.col_start}, 0);
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

std::string shp_file(const std::vector<shp_icon>& icons, const shp_identifier& identifier) {
  growing_file file = file_without_icons(identifier, icons);
  for (const shp_icon& icon : icons) add_icon(file, bytes_of(icon));
  return std::move(file.bytes);
}

std::string shared_shp_file(const std::vector<shp_icon>& icons, const shp_identifier& identifier) {
  growing_file file = file_without_icons(identifier, icons);
  std::unordered_multimap<std::size_t, std::size_t> known;  // offsets by the hashes of icons
  for (const shp_icon& icon : icons) {
    const std::string bytes = bytes_of(icon);
    const std::size_t hash = std::hash<std::string>()(bytes);
    const auto [first, last] = known.equal_range(hash);
    const auto same = std::find_if(first, last, [&](const auto& offset) {
      return file.bytes.compare(offset.second, bytes.size(), bytes) == 0;
    });
    if (same != last) {
      add_entry(file, same->second);
    } else {
      known.emplace(hash, file.bytes.size());
      add_icon(file, bytes);
    }
  }
  return std::move(file.bytes);
}

std::string shp_file(const std::vector<picture>& pictures) {
  std::vector<shp_icon> icons;
  icons.reserve(pictures.size());
  for (const picture& drawn : pictures) icons.push_back(make_icon(drawn));
  return shp_file(icons);
}

}  // namespace ostrane
