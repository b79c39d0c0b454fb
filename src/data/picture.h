#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ostrane {

// A picture of palette indices, row by row. A cell holds an index from 0 to 255 or is unset, which
// means transparent.
class picture {
 public:
  static constexpr std::int16_t unset = -1;

  picture(int columns, int rows)
      : columns_(columns),
        rows_(rows),
        cells_(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), unset) {}

  friend bool operator==(const picture&, const picture&) = default;

  int columns() const { return columns_; }
  int rows() const { return rows_; }

  // Column and row must lie in the picture.
  std::int16_t at(int column, int row) const { return cells_[index_of(column, row)]; }
  void set(int column, int row, std::uint8_t index) { cells_[index_of(column, row)] = index; }
  bool is_set(int column, int row) const { return at(column, row) >= 0; }
  std::span<std::int16_t> row(int row) {
    return std::span(cells_).subspan(index_of(0, row), static_cast<std::size_t>(columns_));
  }
  std::span<const std::int16_t> row(int row) const {
    return std::span(cells_).subspan(index_of(0, row), static_cast<std::size_t>(columns_));
  }

 private:
  std::size_t index_of(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  int columns_;
  int rows_;
  std::vector<std::int16_t> cells_;
};

}  // namespace ostrane
