#include "icon_fixture.h"

using namespace ostrane;

const std::string palette(1024, '\1');

using index_test = icon_test;

// The number of entries, the state of the three menus, and the rows.
static std::string shown() {
  EXPECT_TRUE(Form1.Enabled() && !Form2.Visible());
  std::string text = Form1.Text1.Text();
  for (const auto* menu : {&Form1.mnu_ext, &Form1.mnu_save, &Form1.mnu_read_filelist})
    text += menu->Enabled() ? '+' : '-';
  for (int row = 0; row < Form1.List1.ListCount(); ++row) text += " " + Form1.List1.List(row);
  return text;
}

// Reads another archive after this one. The rows are then those of the new one, or none, after one
// message with the file and the fault. The record count of the old one stays then.
TEST_F(index_test, ListsEveryRecordOrDiscardsADamagedIndex) {
  const std::string no_archive = " cannot be read as an archive: it ";
  const std::string no_count = no_archive + "ends within the number of its records.";
  const std::string range = " as the number of its records, which is from 0 to 32768.";
  const std::string no_record = no_archive + "ends before the last of its 2 records.";
  const std::vector<std::pair<std::int32_t, std::string>> many(32769, {0, ""});
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {archive_bytes({{"A.SHP", "a"}, {"b.txt", "12"}, {"ABCDEFGHI.SHP", ""}}),
       "3+++ A.SHP b.txt ABCDEFGHI.SHP ", ""},
      {archive_bytes({{std::string("AB\0C.SHP", 8), "x"}}), "1+++ ABC.SHP ", ""},
      {index_bytes(1, {{21, ""}}), "0+++ ", ""},
      {index_bytes(0, {}), "-1+++", ""},
      {index_bytes(32768, many), "32767+++" + std::string(32768, ' '), ""},
      {"none", "1+++", " is not found"},
      {"", "1+++", no_count},
      {"\1\2\3", "1+++", no_count},
      {index_bytes(-1, {}), "1+++", no_archive + "gives -1" + range},
      {index_bytes(32769, many), "1+++", no_archive + "gives 32769" + range},
      {index_bytes(INT32_MAX, {}), "1+++", no_archive + "gives 2147483647" + range},
      {index_bytes(2, {{38, "A.TXT"}}), "1+++", no_record},
      {index_bytes(2, {{38, "A.TXT"}, {38, ""}}).substr(0, 37), "1+++", no_record},
  };
  for (const auto& [bytes, rows, fault] : cases) {
    restart();
    open_archive({{"OLD.TXT", "text"}});
    write("C:\\new\\OsTrane.DAT", bytes);
    if (bytes == "none") fs::remove(disk_path("C:\\new\\OsTrane.DAT"));
    open_archive("C:\\new");
    EXPECT_EQ(new_messages(), texts(fault.empty() ? 0 : 1, "C:\\new\\ostrane.dat" + fault));
    EXPECT_EQ(shown(), rows);
    EXPECT_EQ(Form1.List1.ListIndex(), -1);
  }
}

// The old index does not fit a changed archive; what is shown stays. A new one may not change
// during the read.
TEST_F(index_test, RefusesToReadAChangedArchive) {
  const std::string icons = shp_file(plain_icons(3, 400, 400));
  open_archive({{"A.SHP", icons}, {"N.TXT", "text"}});
  click_row("A.SHP");
  const auto seen = [] {
    return Form1.Frame1.Caption() + view() + (Form1.Text6.Visible() ? " text" : "");
  };
  const std::string before = "A.SHP3: 1 -  1: 1=0";
  EXPECT_EQ(seen(), before);
  write("C:\\ostrane.dat", archive_bytes({{"A.SHP", icons}, {"N.TXT", "tone"}}));
  const std::function<void()> acts[] = {[] { click_row("A.SHP"); },
                                        [] { user::double_click(Form1.List1, 0); },
                                        [] { click_row("N.TXT"); }, clicking(Form1.Command6)};
  for (const auto& act : acts) {
    act();
    EXPECT_EQ(new_messages(),
              texts{"C:\\ostrane.dat has changed since it was read. Read it again."});
    EXPECT_EQ(seen(), before) << &act - acts;
  }
  failing_calls watched;
  watched.before("read_some", change_archive);
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

using from_outside_test = tool_test;

// Paths of the system below the root of the drives. F5 reads the open archive again.
TEST_F(from_outside_test, OpensAnArchiveOrItsFolder) {
  const std::string archive = archive_bytes({{"A.TXT", "a"}, {"B.TXT", "b"}});
  const std::string refused = " is no ostrane.dat, and no folder that holds one.";
  const std::tuple<const char*, std::string, texts> cases[] = {
      {"c/with", "C:\\with", {}},
      {"c/with/", "C:\\with", {}},
      {"c/empty/../with/OSTRANE.DAT", "C:\\with", {}},
      {"c/with/other.dat", "C:\\", {"C:\\with\\other.dat" + refused}},
      {"c/empty", "C:\\", {"C:\\empty" + refused}},
      {"c/empty/ostrane.dat", "C:\\", {"C:\\empty\\ostrane.dat" + refused}},
      {"c/gone", "C:\\", {"C:\\gone" + refused}},
  };
  for (const auto& [path, folder, messages] : cases) {
    reset_drives();
    write("C:\\with\\OSTRANE.DAT", archive);
    write("C:\\with\\other.dat", archive);
    make_folder("C:\\empty");
    restart();
    EXPECT_EQ(Form1.TakesDrop(root / path), messages.empty()) << path;
    user::drop(Form1, root / path);
    EXPECT_EQ(new_messages(), messages);
    EXPECT_EQ(Form1.Text1.Text(), messages.empty() ? "2" : "");
    EXPECT_EQ(Form2.Dir1.Path(), folder) << path;
    start_tool(root / "c" / "program", nullptr, root / path);
    EXPECT_EQ(new_messages(), messages);
    EXPECT_EQ(Form1.List1.ListCount(), messages.empty() ? 3 : 0);
    write("C:\\with\\OSTRANE.DAT", archive_bytes({{"A.TXT", "a"}}));
    user::press(Form1, Form1.keys[2]);
    EXPECT_EQ(Form1.Text1.Text(), messages.empty() ? "1" : "") << Form1.keys[2].name;
  }
}

// Enter on the open folder reads its archive. The dialog first shows the current folder if that
// holds one.
TEST_F(from_outside_test, TheDialogFindsTheArchive) {
  write("C:\\with\\ostrane.dat", archive_bytes({{"A.TXT", "a"}}));
  make_folder("C:\\empty");
  for (const std::string current : {"C:\\with", "C:\\empty"}) {
    restart(current);
    user::click(Form1.mnu_open);
    EXPECT_EQ(Form2.Dir1.Path(), current == "C:\\with" ? current : "C:\\");
    user::click(Form2.Command2);
    Form2.Dir1.Path = "C:\\";
    user::click(Form1.mnu_open);
    EXPECT_EQ(Form2.Dir1.Path(), "C:\\") << "not the first time";
    std::int32_t row = 0;
    while (Form2.Dir1.List(row) != "with") ++row;
    user::enter_folder(Form2.Dir1, row);
    EXPECT_TRUE(Form2.Visible());
    user::enter_folder(Form2.Dir1, Form2.Dir1.open_row());
    EXPECT_FALSE(Form2.Visible());
    EXPECT_EQ(Form1.Text1.Text(), "1");
  }
}
