#include <algorithm>

#include "icon_fixture.h"

namespace ostrane {
namespace {

class decoder_test : public icon_test {
 protected:
  // Shows one icon, in colours that tell their index.
  void decode(const icon_head& head, const std::string& bytes) {
    open_archive({{"F1.SHP", samples::shp_file(std::vector<samples::shp_icon>{{head, bytes}})},
                  palette_entry()});
    click_row("F1.SHP");
  }

  // The indices of the cells, row by row, -1 for an unset one.
  static std::vector<std::vector<int>> cells() {
    std::vector<std::vector<int>> rows;
    for (std::int32_t y = 0; y < slot(1).rows(); ++y) {
      rows.emplace_back();
      for (std::int32_t x = 0; x < slot(1).columns(); ++x) {
        const platform::colour c = slot(1).pixel(x, y);
        rows.back().push_back(
            c == platform::picture_box::unset ? -1 : static_cast<int>(platform::blue_of(c)));
      }
    }
    return rows;
  }
};

using grid = std::vector<std::vector<int>>;

TEST_F(decoder_test, PaintsTheCellsThatTheStreamSays) {
  const icon_head box_6_by_2{
      .no_of_rows = 1, .no_of_cols = 5, .col_start = 1, .row_start = 0, .col_end = 4, .row_end = 1};
  const icon_head margins{
      .no_of_rows = 2, .no_of_cols = 3, .col_start = 1, .row_start = 1, .col_end = 2, .row_end = 1};
  const icon_head row_of_4 = head_of_size(4, 1);
  const int n = -1;
  const struct {
    const char* what;
    icon_head head;
    std::string bytes;
    grid cells;
  } cases[] = {
      {"a run, a skip and literals",
       box_6_by_2,
       stream({6, 0x2A, 0, 1, 2, 5, 0x10, 0x11, 0}),
       {{n, 0x2A, 0x2A, 0x2A, n, n}, {n, n, n, 0x10, 0x11, n}}},
      {"one-pixel operations and index 0",
       row_of_4,
       stream({2, 0, 3, 0, 2, 9, 3, 255, 0}),
       {{0, 0, 9, 255}}},
      {"a skip of nothing", row_of_4, stream({1, 0, 2, 5, 0}), {{5, n, n, n}}},
      {"a skip of 255 to the right", row_of_4, stream({1, 255, 2, 5, 0}), {{n, n, n, n}}},
      {"runs that meet", row_of_4, stream({4, 1, 4, 2, 0}), {{1, 1, 2, 2}}},
      {"later writes win only over their own cells",
       row_of_4,
       stream({8, 1, 0, 2, 2, 0}),
       {{1, 1, 1, 1}}},
      {"margins stay unset",
       margins,
       stream({4, 7, 0}),
       {{n, n, n, n}, {n, 7, 7, n}, {n, n, n, n}}},
      {"a run beyond the box is painted whole",
       margins,
       stream({254, 7, 0}),
       {{n, n, n, n}, {n, 7, 7, 7}, {n, n, n, n}}},
      {"a literal beyond the picture is lost",
       row_of_4,
       stream({13, 1, 2, 3, 4, 5, 6, 0}),
       {{1, 2, 3, 4}}},
      {"nothing is taken behind the last row", row_of_4, stream({0, 2, 9, 0}), {{n, n, n, n}}},
      {"rows that end at once", head_of_size(2, 2), stream({0, 0}), {{n, n}, {n, n}}},
      {"a picture of one pixel", head_of_size(1, 1), stream({2, 3, 0}), {{3}}},
  };
  for (const auto& c : cases) {
    decode(c.head, c.bytes);
    EXPECT_EQ(cells(), c.cells) << c.what;
  }
}

TEST_F(decoder_test, ANegativeStartOfTheBoxPaintsWhatLiesInside) {
  icon_head head = head_of_size(3, 2);
  head.col_start = -2;
  head.row_start = -1;
  decode(head, stream({2, 9, 0, 8, 5, 0, 6, 6, 0}));
  EXPECT_EQ(cells(), (grid{{5, 5, -1}, {6, -1, -1}}));
}

// The longest operations, and a stream of more than one buffer, so that control bytes and operands
// fall on both sides of a refill.
TEST_F(decoder_test, ReadsOnBehindAFullBuffer) {
  std::string bytes;
  constexpr int rows = 400;
  for (int row = 0; row < rows; ++row) {
    bytes += static_cast<char>(255);
    for (int i = 0; i < 127; ++i) bytes += static_cast<char>((row + i) % 256);
    bytes += stream({254, row % 256, 0});
  }
  ASSERT_GT(bytes.size(), 32768U);
  ASSERT_NE(32768 % 131, 0);
  decode(head_of_size(254, rows), bytes);
  const grid painted = cells();
  for (int row = 0; row < rows; ++row) {
    for (int i = 0; i < 127; ++i) {
      ASSERT_EQ(painted[static_cast<std::size_t>(row)][static_cast<std::size_t>(i)],
                (row + i) % 256);
      ASSERT_EQ(painted[static_cast<std::size_t>(row)][static_cast<std::size_t>(127 + i)],
                row % 256);
    }
  }
}

// A stream cut off anywhere ends the icon; the cells painted so far stay and no message comes.
TEST_F(decoder_test, AStreamThatRunsOutEndsTheIcon) {
  const std::string bytes = stream({6, 1, 0, 7, 2, 3, 4, 0, 1, 2, 2, 5, 0});
  const std::string file =
      samples::shp_file(std::vector<samples::shp_icon>{{head_of_size(3, 3), bytes}});
  const std::size_t without_stream = file.size() - bytes.size();
  grid last_one(3, std::vector<int>(3, -1));
  for (std::size_t kept = 0; kept <= bytes.size(); ++kept) {
    open_archive({palette_entry(), {"F1.SHP", file.substr(0, without_stream + kept)}});
    click_row("F1.SHP");
    EXPECT_EQ(new_messages(), std::vector<std::string>{});
    const grid painted = cells();
    for (std::size_t y = 0; y < 3; ++y) {
      for (std::size_t x = 0; x < 3; ++x) {
        if (last_one[y][x] >= 0) {
          EXPECT_EQ(painted[y][x], last_one[y][x]) << kept;
        }
      }
    }
    last_one = painted;
  }
  EXPECT_EQ(last_one, (grid{{1, 1, 1}, {2, 3, 4}, {-1, -1, 5}}));
}

// A stream that goes on and on without painting must not hold the tool for as long as it lasts.
TEST_F(decoder_test, AnEndlessStreamIsGivenUp) {
  std::string skips;
  for (int i = 0; i < 100000; ++i) skips += stream({1, 0});
  decode(head_of_size(2, 1), stream({2, 5}) + skips + stream({2, 9, 0}));
  EXPECT_EQ(cells(), (grid{{5, -1}}));
}

// An icon is given the bytes up to the end of its entry and 23 more, and not those behind.
TEST_F(decoder_test, AnIconEndsWithTheBytesOfItsEntry) {
  const std::string behind = stream({2, 7}) + std::string(20, '\1') + stream({2, 9, 2, 9});
  open_archive({{"F1.SHP", samples::shp_file(std::vector<samples::shp_icon>{
                               {head_of_size(300, 2), stream({2, 5})}})},
                {"NEXT.BIN", behind},
                palette_entry()});
  click_row("F1.SHP");
  EXPECT_EQ(cells()[0][0], 5);
  EXPECT_EQ(cells()[0][1], 7);
  for (const auto& row : cells()) EXPECT_EQ(std::count(row.begin(), row.end(), 9), 0);
}

}  // namespace
}  // namespace ostrane
