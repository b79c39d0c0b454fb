#include "shp_writer.h"

#include <gtest/gtest.h>

#include <string>

namespace ostrane::samples {
namespace {

// A letter is a cell of that index, a dot an unset one.
picture row_of(const std::string& cells) {
  picture drawn(static_cast<int>(cells.size()), 1);
  for (int column = 0; column < drawn.columns(); ++column) {
    const char c = cells[static_cast<std::size_t>(column)];
    if (c != '.') drawn.set(column, 0, static_cast<std::uint8_t>(c));
  }
  return drawn;
}

icon_head whole(const picture& drawn) {
  icon_head head;
  head.col_end = drawn.columns() - 1;
  head.row_end = drawn.rows() - 1;
  return head;
}

std::string bytes(std::initializer_list<int> values) {
  std::string text;
  for (const int value : values) text += static_cast<char>(value);
  return text;
}

TEST(shp_writer_test, PacksARowIntoTheFewestBytes) {
  const struct {
    std::string cells;
    std::string stream;
  } cases[] = {
      {"...", bytes({0})},
      {"A", bytes({3, 'A', 0})},
      {"AA", bytes({4, 'A', 0})},
      {"AAB", bytes({4, 'A', 3, 'B', 0})},
      {"AB", bytes({5, 'A', 'B', 0})},
      {"ABBA", bytes({9, 'A', 'B', 'B', 'A', 0})},
      {"ABBBA", bytes({3, 'A', 6, 'B', 3, 'A', 0})},
      {"..A", bytes({1, 2, 3, 'A', 0})},
      {"A.BC..", bytes({3, 'A', 1, 1, 5, 'B', 'C', 0})},
      {std::string(128, 'A'), bytes({254, 'A', 3, 'A', 0})},
      {std::string(256, '.') + "A", bytes({1, 255, 1, 1, 3, 'A', 0})},
  };
  for (const auto& c : cases) {
    const picture drawn = row_of(c.cells);
    EXPECT_EQ(packed(drawn, whole(drawn)), c.stream) << c.cells;
  }
}

}  // namespace
}  // namespace ostrane::samples
