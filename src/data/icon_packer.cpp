#include "data/icon_packer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

// shp_format.h tells the bytes of an icon file, icon_decoder.h those of a stream.
namespace ostrane {
namespace {

constexpr int max_skip = 255;
constexpr int max_op_pixels = 127;
// A shorter run within a literal costs no less than going on with the literal.
constexpr int min_run_after_literal = 3;

void append(std::string& to, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) to += static_cast<char>(value >> (8 * i) & 0xFFU);
}
void append16(std::string& to, std::int16_t value) {
  append(to, static_cast<std::uint16_t>(value), 2);
}
void append32(std::string& to, std::int32_t value) {
  append(to, static_cast<std::uint32_t>(value), 4);
}

// Packs one row of a picture, from `column` up to but not including `end`.
class row_packer {
 public:
  row_packer(const picture& drawn, int row, int column, int end, std::string& stream)
      : drawn_(drawn), row_(row), column_(column), end_(end), stream_(stream) {}

  void pack() {
    while (end_ > column_ && !drawn_.is_set(end_ - 1, row_)) --end_;
    while (column_ < end_) {
      if (cell(column_) == picture::unset) {
        skip();
      } else if (equal_cells(column_) >= 2) {
        run();
      } else {
        literal();
      }
    }
    stream_ += '\0';
  }

 private:
  std::int16_t cell(int column) const { return drawn_.at(column, row_); }

  int equal_cells(int from) const {
    int to = from + 1;
    while (to < end_ && cell(to) == cell(from)) ++to;
    return to - from;
  }

  void skip() {
    const int count = std::min(equal_cells(column_), max_skip);
    stream_ += '\1';
    stream_ += static_cast<char>(count);
    column_ += count;
  }

  void run() {
    const int count = std::min(equal_cells(column_), max_op_pixels);
    stream_ += static_cast<char>(2 * count);
    stream_ += static_cast<char>(cell(column_));
    column_ += count;
  }

  void literal() {
    const int limit = std::min(end_, column_ + max_op_pixels);
    int to = column_ + 1;
    while (to < limit && cell(to) != picture::unset && equal_cells(to) < min_run_after_literal) {
      ++to;
    }
    stream_ += static_cast<char>(2 * (to - column_) + 1);
    for (; column_ < to; ++column_) stream_ += static_cast<char>(cell(column_));
  }

  const picture& drawn_;
  int row_;
  int column_;
  int end_;
  std::string& stream_;
};

void append_icon(std::string& to, const shp_icon& icon) {
  append16(to, icon.head.no_of_rows);
  append16(to, icon.head.no_of_cols);
  append32(to, 0);
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
    for (int column = 0; column < drawn.columns(); ++column) {
      if (!drawn.is_set(column, row)) continue;
      head.col_start = std::min(head.col_start, column);
      head.row_start = std::min(head.row_start, row);
      head.col_end = std::max(head.col_end, column);
      head.row_end = std::max(head.row_end, row);
    }
  }
  if (head.row_end < 0) head.col_start = head.row_start = head.col_end = head.row_end = 0;
  return head;
}

std::string packed(const picture& drawn, const icon_head& head) {
  std::string stream;
  for (int row = head.row_start; row <= head.row_end; ++row) {
    row_packer(drawn, row, head.col_start, head.col_end + 1, stream).pack();
  }
  return stream;
}

shp_icon make_icon(const picture& drawn) {
  const icon_head head = head_of(drawn);
  return {head, packed(drawn, head)};
}

std::string shp_file(const std::vector<shp_icon>& icons) {
  std::string directory;
  std::string bodies;
  for (const shp_icon& icon : icons) {
    const std::size_t offset = shp_head_size + shp_dir_entry_size * icons.size() + bodies.size();
    append32(directory, static_cast<std::int32_t>(offset));
    append32(directory, 0);
    append_icon(bodies, icon);
  }
  std::string file = "ICON";
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
