#include <fstream>

#include "failing_calls.h"
#include "files/system_calls.h"
#include "icon_fixture.h"

namespace ostrane {
namespace {

const std::string palette(1024, '\1');

using index_test = tool_test;

// The number of entries, the state of the three menus, and the rows.
std::string shown() {
  EXPECT_TRUE(Form1.Enabled() && !Form2.Visible());
  std::string text = Form1.Text1.Text();
  for (const auto* menu : {&Form1.mnu_ext, &Form1.mnu_save, &Form1.mnu_read_filelist}) {
    text += menu->Enabled() ? '+' : '-';
  }
  for (std::int32_t row = 0; row < Form1.List1.ListCount(); ++row) {
    text += " " + Form1.List1.List(row);
  }
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
    EXPECT_EQ(tool_state.archive_path, "C:\\ostrane.dat");
  }
}

// One message reports the file and the fault.
TEST_F(index_test, KeepsNothingOfADamagedIndex) {
  const std::string no_count = "it ends within the number of its records.";
  const std::string range = " as the number of its records, which is from 0 to 32768.";
  const std::string no_record = "it ends before the last of its 2 records.";
  const std::vector<std::pair<std::int32_t, std::string>> many(32769, {0, "A"});
  const std::pair<std::string, std::string> cases[] = {
      {"", no_count},
      {"\1\2\3", no_count},
      {index_bytes(-1, {}), "it gives -1" + range},
      {index_bytes(32769, many), "it gives 32769" + range},
      {index_bytes(INT32_MAX, {}), "it gives 2147483647" + range},
      {index_bytes(2, {{38, "A.TXT"}}), no_record},
      {index_bytes(2, {{38, "A.TXT"}, {38, ""}}).substr(0, 37), no_record},
  };
  for (const auto& [bytes, fault] : cases) {
    restart();
    open_archive({{"OLD.TXT", "text"}});
    write("C:\\bad\\ostrane.dat", bytes);
    open_archive("C:\\bad");
    EXPECT_EQ(new_messages(), texts{"C:\\bad\\ostrane.dat cannot be read as an archive: " + fault});
    EXPECT_EQ(shown(), "1+++");
    EXPECT_EQ(tool_state.record_count, 2);
  }
}

TEST_F(index_test, AMissingArchiveLeavesTheOpenOne) {
  open_archive({{"A.TXT", "a"}, {"B.TXT", "b"}});
  open_archive("C:\\program");
  EXPECT_EQ(new_messages(), texts{"C:\\program\\ostrane.dat is not found"});
  EXPECT_EQ(shown(), "2+++");
}

// The old index does not fit a changed archive. Reading it again helps.
TEST_F(index_test, RefusesToReadAChangedArchive) {
  const std::string icons = shp_file(plain_icons(3, 400, 400));
  open_archive({{"A.SHP", icons}, {"N.TXT", "note"}});
  const std::string bytes = archive_bytes({{"A.SHP", icons}, {"N.TXT", "tone"}});
  write("C:\\ostrane.dat", bytes);
  for (const char* name : {"A.SHP", "N.TXT"}) {
    click_row(name);
    EXPECT_EQ(new_messages(),
              texts{"C:\\ostrane.dat has changed since it was read. Read it again."});
  }
  EXPECT_TRUE(Form1.Text6.Text().empty() && Form1.Text2.Text() == "0");
  open_archive();
  click_row("N.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "tone");
}

TEST_F(index_test, RefusesAnArchiveThatIsWrittenToMeanwhile) {
  static const auto read_some = files::system_calls.read_some;
  const failing_calls none(INT32_MAX);
  files::system_calls.read_some = [](int file, std::byte* to, std::size_t count) {
    std::ofstream(disk_path("C:\\ostrane.dat"), std::ios::app) << "x";
    return read_some(file, to, count);
  };
  open_archive({{"A.TXT", "a"}});
  EXPECT_EQ(new_messages(), texts{"C:\\ostrane.dat cannot be read as an archive: it was written to "
                                  "meanwhile."});
}

TEST_F(index_test, TheNextSeriesNeedsTheSameArchive) {
  const std::vector<entry> entries = {{"A.SHP", shp_file(plain_icons(9, 300, 300))}};
  write("C:\\other\\ostrane.dat", archive_bytes(entries));
  for (const auto& [folders, next] : {std::pair{texts{"C:\\"}, true},
                                      {{"C:\\program", "C:\\"}, true},
                                      {{"C:\\other"}, false},
                                      {{"C:\\program"}, false}}) {
    restart();
    open_archive(entries);
    click_row("A.SHP");
    const std::string first = Form1.Text3.Text();
    for (const std::string& folder : folders) open_archive(folder);
    user::click(Form1.Command6);
    EXPECT_EQ(Form1.Text3.Text() != first, next) << folders.front();
  }
  new_messages();
  compare_with("D:\\", "x.txt");
  EXPECT_EQ(new_messages(), texts{"No archive is open. Read one first. Nothing was compared."});
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
  const struct {
    std::string before, archive;  // opened in turn
    std::size_t index;
    forms_layer::colour colour;
  } cases[] = {
      {own, twice, 7, 0x020202U},        {own, twice, 9, 0x102030U}, {"", at(-5), 1, 0xF0F0F0U},
      {"", at(INT32_MAX), 1, 0xF0F0F0U}, {"", cut, 1, 0x7F7F7FU},    {"", cut, 2, 0xE0E0E0U},
      {own, none, 0, 0x050505U},
  };
  for (const auto& c : cases) {
    restart();
    if (!c.before.empty()) open_bytes(c.before);
    open_bytes(c.archive);
    EXPECT_EQ(tool_state.colour_table[c.index], c.colour) << &c - cases;
    EXPECT_EQ(new_messages(), texts{});
  }
}

}  // namespace
}  // namespace ostrane
