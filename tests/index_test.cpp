#include "tool_fixture.h"

namespace ostrane {
namespace {

using testing::Test;
using messages = std::vector<std::string>;

class index_test : public tool_test {
 protected:
  std::vector<std::string> rows() const {
    std::vector<std::string> all;
    for (std::int32_t i = 0; i < Form1.List1.ListCount(); ++i) {
      all.push_back(Form1.List1.List(i));
    }
    return all;
  }
  static bool menus_open() {
    return Form1.mnu_ext.Enabled() && Form1.mnu_save.Enabled() && Form1.mnu_read_filelist.Enabled();
  }
};

TEST_F(index_test, ListsEveryRecordWithItsEndRecord) {
  const std::string thirteen = "ABCDEFGHI.SHP";
  const std::string with_nul("AB\0C.SHP", 8);
  open_archive({{"A.SHP", some_bytes(10)}, {"b.txt", "12345"}, {thirteen, ""}, {with_nul, "x"}});
  EXPECT_EQ(rows(), (std::vector<std::string>{"A.SHP", "b.txt", thirteen, "ABC.SHP", ""}));
  EXPECT_EQ(Form1.Text1.Text(), "4");
  EXPECT_EQ(Form1.List1.ListIndex(), -1);
  EXPECT_EQ(tool_state.dat_index[1].offset, 4 + 17 * 5 + 10);
  EXPECT_TRUE(menus_open());
  EXPECT_TRUE(Form1.Enabled());
  EXPECT_FALSE(Form2.Visible());
  EXPECT_EQ(tool_state.archive_path, "C:\\ostrane.dat");
  EXPECT_EQ(tool_state.archive_path_copy, "C:\\ostrane.dat");
}

TEST_F(index_test, TakesEveryCountInRange) {
  const struct {
    std::string bytes;
    std::int32_t rows;
    std::string text1;
  } cases[] = {
      {index_bytes(1, {{21, ""}}), 1, "0"},
      {index_bytes(0, {}), 0, "-1"},
      {index_bytes(32768, std::vector<std::pair<std::int32_t, std::string>>(32768, {0, "A.TXT"})),
       32768, "32767"},
  };
  for (const auto& c : cases) {
    begin();
    write("C:\\OsTrane.DAT", c.bytes);
    open_archive();
    EXPECT_EQ(Form1.List1.ListCount(), c.rows);
    EXPECT_EQ(Form1.Text1.Text(), c.text1);
    EXPECT_TRUE(menus_open());
    if (c.rows > 1) user::select_row(Form1.List1, c.rows - 1);
    EXPECT_EQ(Form1.Text6.Text(), "");
  }
}

// A damaged index gives one message that names the file and its fault; nothing of it is kept.
TEST_F(index_test, RefusesADamagedIndexWhole) {
  const std::string good = archive_bytes({{"OLD.TXT", "text"}});
  const struct {
    std::string bytes;
    std::string fault;
  } cases[] = {
      {"", "it ends within the number of its records."},
      {"\1\2\3", "it ends within the number of its records."},
      {index_bytes(-1, {}), "it gives -1 as the number"},
      {index_bytes(32769, std::vector<std::pair<std::int32_t, std::string>>(32769, {0, "A"})),
       "it gives 32769 as the number"},
      {index_bytes(2147483647, {}), "it gives 2147483647 as the number"},
      {index_bytes(2, {{38, "A.TXT"}}), "it ends before the last of its 2 records."},
      {index_bytes(2, {{38, "A.TXT"}, {38, ""}}).substr(0, 37), "it ends before the last"},
  };
  for (const auto& c : cases) {
    begin();
    open_bytes(good);
    write("C:\\bad\\ostrane.dat", c.bytes);
    open_archive("C:\\bad");
    const messages told = new_messages();
    ASSERT_EQ(told.size(), 1U) << c.fault;
    EXPECT_NE(told[0].find("C:\\bad\\ostrane.dat"), std::string::npos) << told[0];
    EXPECT_NE(told[0].find(c.fault), std::string::npos) << told[0];
    EXPECT_EQ(rows(), std::vector<std::string>{});
    EXPECT_EQ(tool_state.record_count, 2);
    EXPECT_EQ(Form1.Text1.Text(), "1");
    EXPECT_TRUE(Form1.Enabled());
    EXPECT_FALSE(Form2.Visible());
  }
}

TEST_F(index_test, TellsThatAnArchiveIsMissing) {
  make_folder("C:\\empty");
  open_archive("C:\\empty");
  EXPECT_EQ(new_messages(), messages{"C:\\empty\\ostrane.dat is not found"});
  EXPECT_EQ(Form1.Text1.Text(), "-1");
  EXPECT_FALSE(Form1.mnu_ext.Enabled());
  EXPECT_TRUE(Form1.Enabled());
  EXPECT_FALSE(Form2.Visible());

  open_archive({{"A.TXT", "a"}, {"B.TXT", "b"}});
  open_archive("C:\\empty");
  EXPECT_EQ(Form1.Text1.Text(), "2");
  EXPECT_EQ(Form1.List1.ListCount(), 0);
  EXPECT_TRUE(menus_open());
}

std::string palette_of(char fill) { return std::string(1024, fill); }

TEST_F(index_test, TakesThePaletteFromTheLastRecordThatNamesIt) {
  std::string last = palette_of(2);
  last.replace(4 * 9, 4, std::string("\x10\x20\x30\xEE", 4));
  open_archive({{"GAME.PAL", palette_of(1)}, {"  game.pal ", last}, {"X.PAL", palette_of(3)}});
  EXPECT_EQ(tool_state.colour_table[7], platform::rgb(2, 2, 2));
  EXPECT_EQ(tool_state.colour_table[9], 0x102030U);
  EXPECT_EQ(tool_state.game_pal_offset, 4 + 17 * 4 + 1024);
}

TEST_F(index_test, APaletteOutsideTheFileCountsAsNone) {
  for (const std::int32_t offset : {0, -5, 2147483647}) {
    begin();
    open_bytes(index_bytes(2, {{offset, "GAME.PAL"}, {38, ""}}) + palette_of(1));
    EXPECT_EQ(tool_state.colour_table[1], 0xF0F0F0U) << offset;
  }
}

// Without a palette of its own an archive is read at the place where the last one had it.
TEST_F(index_test, KeepsThePlaceOfThePalette) {
  open_archive({{"GAME.PAL", palette_of(1)}});
  open_archive(std::vector<entry>{{"A.TXT", palette_of(5)}});
  EXPECT_EQ(tool_state.colour_table[0], platform::rgb(5, 5, 5));
}

TEST_F(index_test, KeepsColoursThatTheFileDoesNotHoldWhole) {
  const platform::colour built_in_2 = tool_state.colour_table[2];
  open_archive({{"GAME.PAL", std::string(4 * 2 + 3, '\x7F')}});
  EXPECT_EQ(tool_state.colour_table[1], 0x7F7F7FU);
  EXPECT_EQ(tool_state.colour_table[2], built_in_2);
  EXPECT_EQ(built_in_2, 0xE0E0E0U);
}

}  // namespace
}  // namespace ostrane
