#include "icon_fixture.h"

using namespace ostrane;

struct decoder_test : icon_test {
  static std::string cells() {
    std::string text;
    for (std::int32_t y = 0; y < slot(1).rows(); ++y) {
      for (std::int32_t x = 0; x < slot(1).columns(); ++x) text += cell(1, x, y) + " ";
      text += "| ";
    }
    return text;
  }
};

TEST_F(decoder_test, PaintsThePixelsOfTheStream) {
  const icon_head row_of_4 = plain_icon(4, 1, 0).head;
  const icon_head margins{2, 3, 1, 1, 2, 1};
  std::string many_skips;
  for (int i = 0; i < 100000; ++i) many_skips += stream({1, 0});
  const std::tuple<icon_head, std::string, const char*> cases[] = {
      // A run, a skip and literals.
      {{1, 5, 1, 0, 4, 1},
       stream({6, 42, 0, 1, 2, 5, 16, 17, 0}),
       ". 42 42 42 . . | . . . 16 17 . | "},
      // One-pixel operations, the first and the last index.
      {row_of_4, stream({2, 0, 3, 0, 2, 9, 3, 255, 0}), "0 0 9 255 | "},
      // Skips of 0 and of 255 pixels.
      {row_of_4, stream({1, 0, 2, 5, 0}), "5 . . . | "},
      {row_of_4, stream({1, 255, 2, 5, 0}), ". . . . | "},
      // Runs that meet, and a row that ends before its second run.
      {row_of_4, stream({4, 1, 4, 2, 0}), "1 1 2 2 | "},
      {row_of_4, stream({8, 1, 0, 2, 2, 0}), "1 1 1 1 | "},
      // Margins stay unset; a run may paint past the data box.
      {margins, stream({4, 7, 0}), ". . . . | . 7 7 . | . . . . | "},
      {margins, stream({254, 7, 0}), ". . . . | . 7 7 7 | . . . . | "},
      // Pixels outside the picture are dropped, on the left and above too.
      {row_of_4, stream({13, 1, 2, 3, 4, 5, 6, 0}), "1 2 3 4 | "},
      {{1, 2, -2, -1, 2, 1}, stream({2, 9, 0, 8, 5, 0, 7, 6, 6, 6, 0}), "5 5 . | 6 . . | "},
      {{0, 3, INT32_MIN, 0, 3, 0}, stream({3, 5, 0}), ". . . . | "},
      // The stream ends after the last row.
      {row_of_4, stream({0, 2, 9, 0}), ". . . . | "},
      {plain_icon(2, 2, 0).head, stream({0, 0}), ". . | . . | "},
      {plain_icon(1, 1, 0).head, stream({2, 3, 0}), "3 | "},
      // The file ends within the stream: the pixels painted so far stay, without a message.
      {row_of_4, "", ". . . . | "},
      {row_of_4, stream({6}), ". . . . | "},
      {row_of_4, stream({6, 1}), "1 1 1 . | "},
      {row_of_4, stream({7, 2}), "2 . . . | "},
      {row_of_4, stream({7, 2, 3}), "2 3 . . | "},
      {row_of_4, stream({6, 1, 1}), "1 1 1 . | "},
      // Skips must not take time without limit.
      {row_of_4, stream({2, 5}) + many_skips + stream({2, 9, 0}), "5 . . . | "},
  };
  for (const auto& [head, bytes, painted] : cases) {
    show({{{head, bytes}}});
    EXPECT_EQ(cells(), painted);
    EXPECT_EQ(new_messages(), texts{});
  }
}

// An icon reads up to 23 bytes past its entry and no more. Some streams fill the buffer exactly or
// exceed it by up to 8 bytes: it ends before, within and after the literals.
TEST_F(decoder_test, DoesNotReadPastTheEntry) {
  for (const auto bytes :
       {32U, 33U, 3231U, 32768U, 32769U, 32770U, 32771U, 32775U, 32776U, 65536U, 65537U}) {
    std::string whole = bytes % 2 == 0 ? "" : stream({0});
    while (whole.size() + 4 < bytes) whole += stream({1, 0});
    whole += stream({255, 6, 7, 8, 9});
    const shp_icon icon = {plain_icon(4, 2, 0).head, whole.substr(0, bytes - 23)};
    open_archive({{"F1.SHP", shp_file(std::vector<shp_icon>{icon})},
                  {"NEXT.BIN", whole.substr(bytes - 23)},
                  palette_entry()});
    click_row("F1.SHP");
    EXPECT_EQ(cells(), bytes % 2 == 0 ? "6 7 8 . | . . . . | " : ". . . . | 6 7 8 . | ") << bytes;
  }
}
