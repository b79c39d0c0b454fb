#include "failing_calls.h"
#include "icon_fixture.h"

namespace ostrane {

const std::string palette(1024, '\1');

using index_test = tool_test;

// The number of entries, the state of the three menus, and the rows.
static std::string shown() {
  EXPECT_TRUE(Form1.Enabled() && !Form2.Visible());
  std::string text = Form1.Text1.Text();
  for (const auto* menu : {&Form1.mnu_ext, &Form1.mnu_save, &Form1.mnu_read_filelist}) {
    text += menu->Enabled() ? '+' : '-';
  }
  for (int row = 0; row < Form1.List1.ListCount(); ++row) text += " " + Form1.List1.List(row);
  return text;
}

TEST_F(index_test, ListsEveryRecordAndTheEndRecord) {
  const std::vector<std::pair<std::int32_t, std::string>> many(32768, {0, ""});
  const std::pair<std::string, std::string> cases[] = {
      {archive_bytes({{"A.SHP", "a"}, {"b.txt", "12"}, {"ABCDEFGHI.SHP", ""}}),
       "3+++ A.SHP b.txt ABCDEFGHI.SHP "},
      {archive_bytes({{std::string("AB\0C.SHP", 8), "x"}}), "1+++ ABC.SHP "},
      {index_bytes(1, {{21, ""}}), "0+++ "},
      {index_bytes(0, {}), "-1+++"},
      {index_bytes(32768, many), "32767+++" + std::string(32768, ' ')},
  };
  for (const auto& [bytes, rows] : cases) {
    restart();
    write("C:\\OsTrane.DAT", bytes);
    open_archive();
    EXPECT_EQ(shown(), rows);
    EXPECT_EQ(Form1.List1.ListIndex(), -1);
  }
}

// One message reports the file and the fault. The record count of the old one stays.
TEST_F(index_test, DiscardsADamagedIndex) {
  const std::string missing = " is not found";
  const std::string no_archive = " cannot be read as an archive: it ";
  const std::string no_count = no_archive + "ends within the number of its records.";
  const std::string range = " as the number of its records, which is from 0 to 32768.";
  const std::string no_record = no_archive + "ends before the last of its 2 records.";
  const std::vector<std::pair<std::int32_t, std::string>> many(32769, {0, "A"});
  const std::pair<std::string, std::string> cases[] = {
      {"", missing},
      {"", no_count},
      {"\1\2\3", no_count},
      {index_bytes(-1, {}), no_archive + "gives -1" + range},
      {index_bytes(32769, many), no_archive + "gives 32769" + range},
      {index_bytes(INT32_MAX, {}), no_archive + "gives 2147483647" + range},
      {index_bytes(2, {{38, "A.TXT"}}), no_record},
      {index_bytes(2, {{38, "A.TXT"}, {38, ""}}).substr(0, 37), no_record},
  };
  make_folder("C:\\bad");
  for (const auto& [bytes, fault] : cases) {
    restart();
    open_archive({{"OLD.TXT", "text"}});
    if (fault != missing) write("C:\\bad\\ostrane.dat", bytes);
    open_archive("C:\\bad");
    EXPECT_EQ(new_messages(), texts{"C:\\bad\\ostrane.dat" + fault});
    EXPECT_EQ(shown(), "1+++");
    EXPECT_EQ(tool_state.record_count, 2);
  }
}

// The old index does not fit a changed archive; what is shown stays. A new one may not change
// during the read.
TEST_F(index_test, RefusesToReadAChangedArchive) {
  const std::string icons = shp_file(plain_icons(3, 400, 400));
  open_archive({{"A.SHP", icons}, {"N.TXT", "text"}});
  click_row("A.SHP");
  const auto shown = [] {
    return Form1.Frame1.Caption() + Form1.Text2.Text() + Form1.Text3.Text() +
           std::to_string(Form1.s16_image(1).Visible()) + std::to_string(Form1.Text6.Visible());
  };
  const std::string before = shown();
  EXPECT_EQ(before, "A.SHP3 1 -  110");
  write("C:\\ostrane.dat", archive_bytes({{"A.SHP", icons}, {"N.TXT", "tone"}}));
  void (*const acts[])() = {
      [] { click_row("A.SHP"); },
      [] { user::double_click(Form1.List1, 0); },
      [] { click_row("N.TXT"); },
      [] { user::click(Form1.Command6); },
  };
  for (const auto& act : acts) {
    act();
    EXPECT_EQ(new_messages(),
              texts{"C:\\ostrane.dat has changed since it was read. Read it again."});
    EXPECT_EQ(shown(), before) << &act - acts;
  }
  failing_calls watched;
  watched.before_call = [](const std::string& call) {
    if (call == "read_some") std::ofstream(disk_path("C:\\ostrane.dat"), std::ios::app) << "x";
  };
  open_archive();
  EXPECT_EQ(new_messages(), texts{"C:\\ostrane.dat cannot be read as an archive: it was written to "
                                  "during the read."});
}

// From the last record that names one, and only colours inside the file. An archive without a
// palette is read at the offset of the previous one.
TEST_F(index_test, ReadsThePaletteOfTheArchive) {
  const std::string second = std::string(36, '\2') + "\x10\x20\x30\xEE" + std::string(984, '\2');
  const std::string twice =
      archive_bytes({{"GAME.PAL", palette}, {"  game.pal ", second}, {"X.PAL", palette}});
  const auto at = [](std::int32_t offset) {
    return index_bytes(2, {{offset, "GAME.PAL"}, {38, ""}}) + palette;
  };
  const std::string cut = archive_bytes({{"GAME.PAL", std::string(4 * 2 + 3, '\x7F')}});
  const std::string own = archive_bytes({{"GAME.PAL", palette}});
  const std::string none = archive_bytes({{"A.TXT", std::string(1024, '\5')}});
  // Two archives that are opened in turn, an index and its colour.
  const std::tuple<std::string, std::string, std::size_t, forms_layer::colour> cases[] = {
      {own, twice, 7, 0x020202U},        {own, twice, 9, 0x102030U}, {"", at(-5), 1, 0xF0F0F0U},
      {"", at(INT32_MAX), 1, 0xF0F0F0U}, {"", cut, 1, 0x7F7F7FU},    {"", cut, 2, 0xE0E0E0U},
      {own, none, 0, 0x050505U},
  };
  for (const auto& [before, archive, index, colour] : cases) {
    restart();
    if (!before.empty()) open_bytes(before);
    open_bytes(archive);
    EXPECT_EQ(tool_state.colour_table[index], colour) << index;
    EXPECT_EQ(new_messages(), texts{});
  }
}

}  // namespace ostrane
