#include <fstream>

#include "full_disk.h"
#include "recording_screen.h"

namespace ostrane {
namespace {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;

const std::string closing = "Your new Ostrane.dat has been created and saved in:";

class builder_test : public tool_test {
 protected:
  // The dialog at a folder, which it has just listed.
  static void open_dialog(const std::string& folder = "C:\\work") {
    user::click(Form1.mnu_make);
    Form5.Dir1.Path = folder;
    Form5.File1.Refresh();
    user::type(Form5.Text1, folder);
  }
  static void build(const std::string& folder = "C:\\work") {
    open_dialog(folder);
    user::click(Form5.Command1);
  }
  void begin_in_empty_folder() {
    fs::remove_all(place("C:\\work"));
    make_folder("C:\\work");
    begin();
  }
  void write_files(std::size_t count, std::size_t size) const {
    for (std::size_t i = 0; i < count; ++i) {
      write("C:\\work\\f" + std::to_string(i), some_bytes(size));
    }
  }
};

TEST_F(builder_test, WritesTheIndexAndTheFilesBehindIt) {
  const std::string ten = some_bytes(10);
  const std::string twenty = some_bytes(20, 2);
  const struct {
    std::vector<entry> files;
    std::string archive;
  } cases[] = {
      {{}, std::string("\1\0\0\0\x15\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 21)},
      {{{"b.txt", twenty}, {"A.shp", ten}},
       std::string("\3\0\0\0"
                   "\x37\0\0\0A.SHP\0\0\0\0\0\0\0\0"
                   "\x41\0\0\0B.TXT\0\0\0\0\0\0\0\0"
                   "\x55\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0",
                   55) +
           ten + twenty},
      {{{" lead.txt", "1"},
        {"My file.shp", ""},
        {"abcdefghi.shp", "22"},
        {"bcdefghij.shpx", "333"},
        {"game.pal", twenty},
        {"\xC3\xA9t\xC3\xA9", "4"},
        {".hidden", "5"}},
       archive_bytes({{"LEAD.TXT", "1"},
                      {"ABCDEFGHI.SHP", "22"},
                      {"BCDEFGHIJ.SHP", "333"},
                      {"GAME.PAL", twenty},
                      {std::string("MY\0FILE.SHP", 11), ""},
                      {"\xC9T\xC9", "4"}})},
  };
  for (const auto& c : cases) {
    begin_in_empty_folder();
    for (const entry& file : c.files) write("C:\\work\\" + file.name, file.bytes);
    build();
    EXPECT_EQ(new_messages(), texts{closing + "C:\\work\\ostrane.dat"});
    EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), c.archive);
    EXPECT_EQ(names_in("C:\\work").size(), c.files.size() + 1);
  }
}

// Whatever the case of its name the old archive is no entry, and goes: none is left beside the new.
TEST_F(builder_test, ReplacesTheOldArchiveInWhateverCaseItsNameIs) {
  const std::string expected = archive_bytes({{"A.TXT", "a"}});
  for (const texts& old : {texts{"ostrane.dat"}, texts{"OSTRANE.DAT"}, texts{"Ostrane.Dat"},
                           texts{"OSTRANE.DAT", "ostrane.dat"}, texts{"oStrane.dat", "ostrane.dat"},
                           texts{".OSTRANE.DAT.new"}}) {
    begin_in_empty_folder();
    open_archive({{"X", "x"}});
    write("C:\\work\\a.txt", "a");
    for (const std::string& name : old) {
      write("C:\\work\\" + name, some_bytes(500));
      fs::permissions(place("C:\\work\\" + name), fs::perms::owner_read);
    }
    for (int time = 0; time < 2; ++time) {
      build();
      EXPECT_EQ(names_in("C:\\work"), (texts{"OSTRANE.DAT", "a.txt"})) << old.front();
      EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), expected);
      EXPECT_EQ(Form1.List1.List(0), "A.TXT");
    }
  }
}

TEST_F(builder_test, WorksOnTheListAsItWasShownLast) {
  write("C:\\work\\a.txt", "a");
  open_dialog();
  write("C:\\work\\b.txt", "b");
  user::click(Form5.Command1);
  EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "a"}}));
}

TEST_F(builder_test, AFieldWithoutAFolderMeansTheRootOfTheCurrentDrive) {
  write("C:\\work\\a.txt", "in work");
  write("C:\\a.txt", "in the root");
  begin("C:\\work");
  user::click(Form1.mnu_make);
  user::click(Form5.Command1);
  EXPECT_EQ(new_messages(), texts{closing + "\\ostrane.dat"});
  EXPECT_EQ(read("C:\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "in the root"}}));
  EXPECT_EQ(names_in("C:\\work"), texts{"a.txt"});
}

// A build that fails leaves the old archive, the folder and what the tool knows as they were.
TEST_F(builder_test, AFailedBuildLeavesEverythingAsItWas) {
  const fs::path b = place("C:\\work\\b.txt");
  const auto put_in_b = [&](const std::string& bytes) { std::ofstream(b) << bytes; };
  const auto nothing = [] {};
  const auto remove_b = [&] { fs::remove(b); };
  const struct {
    std::function<void()> before;   // the click
    std::function<void()> between;  // the two passes
    std::string fault;
  } cases[] = {
      {remove_b, nothing, "C:\\work\\b.txt cannot be read: it is not there."},
      {nothing, remove_b, "C:\\work\\b.txt cannot be opened: it is not there."},
      {nothing, [&] { put_in_b("12345678"); }, "C:\\work\\b.txt has changed its size meanwhile."},
      {nothing, [&] { put_in_b("123456"); }, "C:\\work\\b.txt has changed its size meanwhile."},
      {nothing, [&] { put_in_b(""); }, "C:\\work\\b.txt has changed its size meanwhile."},
      {[&] { remove_b(), fs::create_directory(b); }, nothing, "C:\\work\\b.txt cannot be read: "},
      {[&] { fs::resize_file(b, 2147483647); }, nothing,
       "With C:\\work\\b.txt the archive would be larger than 2 GB"},
      {[&] { fs::resize_file(b, 2500000); }, nothing, "C:\\work\\OSTRANE.DAT cannot be written: "},
      {[&] {
         fs::remove(place("C:\\work\\ostrane.dat"));
         make_folder("C:\\work\\ostrane.dat\\inside");
       },
       nothing, "C:\\work\\OSTRANE.DAT cannot be written: "},
      {[&] { user::type(Form5.Text1, "D:\\"); }, nothing,
       "D:\\a.txt cannot be read: it is not there."},
      {[&] { user::type(Form5.Text1, "Q:\\"); }, nothing, "There is no drive Q:"},
  };
  for (const auto& c : cases) {
    begin_in_empty_folder();
    open_archive({{"OPEN.TXT", "open"}});
    write("C:\\work\\a.txt", "a");
    write("C:\\work\\b.txt", "1234567");
    write("C:\\work\\ostrane.dat", "the old one");
    recording_screen screen;
    open_dialog();
    c.before();
    const texts names = names_in("C:\\work");
    screen.at_refresh = [&] {
      if (screen.texts.back().find("C:\\work\\a.txt") != std::string::npos) c.between();
    };
    {
      const full_disk disk;
      user::click(Form5.Command1);
    }
    ASSERT_EQ(screen.messages.size(), 1U) << c.fault;
    EXPECT_EQ(screen.messages[0].find(c.fault), 0U) << screen.messages[0];
    EXPECT_NE(screen.messages[0].find(" No new archive was made."), std::string::npos);
    texts left = names_in("C:\\work");
    if (!fs::exists(b)) left = names;
    EXPECT_EQ(left, names) << c.fault;
    EXPECT_EQ(names_in("C:\\work").front(), "a.txt");
    EXPECT_EQ(names_in("D:\\"), texts{});
    if (!fs::is_directory(place("C:\\work\\ostrane.dat"))) {
      EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
    }
    EXPECT_EQ(tool_state.record_count, 2);
    EXPECT_EQ(tool_state.dat_index[0].offset, 38);
    EXPECT_EQ(tool_state.dat_index[1].offset, 42);
    EXPECT_EQ(tool_state.archive_path, "C:\\ostrane.dat");
    EXPECT_TRUE(Form5.Visible());
    EXPECT_FALSE(Form3.Visible() || Form1.Visible());
  }
}

TEST_F(builder_test, TakesAsManyFilesAsAnIndexHoldsAndNoMore) {
  make_folder("C:\\work");
  const auto file = [&](int i) { return place("C:\\work\\f" + std::to_string(i)); };
  write("C:\\empty", "");
  for (int i = 0; i < 32767; ++i) fs::create_hard_link(place("C:\\empty"), file(i));
  write("C:\\work\\ostrane.dat", "the old one");
  build();
  EXPECT_EQ(new_messages(), texts{"There are 32767 files in C:\\work. An archive holds at most "
                                  "32766. No new archive was made."});
  EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
  fs::remove(file(0));
  build();
  EXPECT_EQ(new_messages(), texts{closing + "C:\\work\\ostrane.dat"});
  EXPECT_EQ(fs::file_size(place("C:\\work\\OSTRANE.DAT")), 4 + 17 * 32767);
  EXPECT_EQ(tool_state.record_count, 32767);
}

// Rows, views and extractions must not mix the archive that was open with the new one.
TEST_F(builder_test, TheNewArchiveBecomesTheOpenOneIfOneWasOpen) {
  open_archive({{"OLD.TXT", "old"}, {"X", "x"}, {"GAME.PAL", std::string(1024, 1)}});
  write("C:\\work\\new.txt", "new");
  write("C:\\work\\game.pal", std::string(1024, 2));
  build();
  EXPECT_EQ(tool_state.archive_path, "C:\\work\\ostrane.dat");
  EXPECT_EQ(tool_state.archive_path_copy, tool_state.archive_path);
  EXPECT_EQ(Form1.Text1.Text(), "2");
  EXPECT_EQ(Form1.List1.ListCount(), 3);
  EXPECT_EQ(tool_state.colour_table[9], platform::rgb(2, 2, 2));
  click_row("NEW.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "new");
}

TEST_F(builder_test, WithNoArchiveOpenTheMenusStayAsTheyAre) {
  write("C:\\work\\a.txt", "12345");
  build();
  EXPECT_EQ(tool_state.record_count, 2);
  EXPECT_EQ(tool_state.dat_index[1].offset, 43);
  EXPECT_EQ(Form1.List1.ListCount(), 0);
  EXPECT_EQ(Form1.Text1.Text(), "");
  EXPECT_EQ(tool_state.archive_path, "");
  EXPECT_FALSE(Form1.mnu_ext.Enabled() || Form1.mnu_save.Enabled() ||
               Form1.mnu_read_filelist.Enabled());
}

TEST_F(builder_test, TellsEachFileAndGivesTheMainWindowBackBeforeTheClosingMessage) {
  write("C:\\work\\A b.txt", "a");
  write("C:\\work\\c.txt", "c");
  recording_screen screen;
  open_dialog();
  screen.at_refresh = [] {
    EXPECT_EQ(Form3.Caption(), "Ostrane.dat tool - Make new Ostrane.dat");
    EXPECT_TRUE(Form3.Visible() && Form5.Visible());
    EXPECT_TRUE(Form3.ProgressBar1.Visible() && Form3.ProgressBar2.Visible());
    EXPECT_TRUE(Form3.Label1.Visible() && Form3.Label2.Visible());
  };
  screen.at_message = [] {
    EXPECT_EQ(Form3.Caption(), "Ostrane.dat tool ");
    EXPECT_TRUE(Form1.Visible());
    EXPECT_FALSE(Form3.Visible() || Form5.Visible());
    EXPECT_FALSE(Form3.ProgressBar1.Visible() || Form3.ProgressBar2.Visible());
    EXPECT_FALSE(Form3.Label1.Visible() || Form3.Label2.Visible());
  };
  user::click(Form5.Command1);
  const std::string calculation = "Calculation internal offsets for the files in Ostrane.dat";
  EXPECT_EQ(screen.texts, (texts{"", calculation, calculation,
                                 "Current File : C:\\work\\A b.txt\r\nCurrent File Number:  0\r\n"
                                 "Total Number of Files:  2",
                                 "Current File : C:\\work\\c.txt\r\nCurrent File Number:  1\r\n"
                                 "Total Number of Files:  2"}));
  EXPECT_EQ(screen.messages, texts{closing + "C:\\work\\ostrane.dat"});
}

TEST_F(builder_test, MovesTheBarsAtTheirPaces) {
  const struct {
    std::size_t files, size;
    std::vector<float> total_bar, file_bar;
  } cases[] = {
      {0, 0, {}, {}},          {96, 1, {}, {}},  {97, 1, {96}, {}}, {193, 0, {96}, {}},
      {194, 0, {96, 193}, {}}, {4, 700, {}, {}}, {3, 1024, {}, {}}, {2, 1025, {}, {1024}},
  };
  recording_screen screen;
  for (const auto& c : cases) {
    begin_in_empty_folder();
    write_files(c.files, c.size);
    screen.begin_bars();
    build();
    EXPECT_EQ(screen.values_2, c.total_bar) << c.files;
    EXPECT_EQ(screen.values_1, c.file_bar) << c.files << " of " << c.size;
    EXPECT_EQ(Form3.ProgressBar2.Max(), static_cast<float>(c.files + 1));
    EXPECT_EQ(Form3.ProgressBar1.Max(), c.files == 0 ? 100 : static_cast<float>(c.size));
  }
}

TEST_F(builder_test, AnExtractedArchiveIsBuiltAgainByteForByte) {
  std::vector<entry> entries;
  for (const std::size_t size : {0, 1, 9, 700, 1024, 1025, 8193, 70000}) {
    entries.push_back({"A" + std::to_string(entries.size()) + ".SHP", some_bytes(size)});
  }
  entries.push_back({"GAME.PAL", some_bytes(1024)});
  entries.push_back({"ZZZZZZZZZ.TXT", "text"});
  open_archive(entries);
  make_folder("C:\\work");
  user::click(Form1.mnu_ext);
  user::type(Form4.Text1, "C:\\work");
  user::click(Form4.Command2);
  for (int time = 0; time < 2; ++time) {
    build();
    EXPECT_TRUE(read("C:\\work\\OSTRANE.DAT") == archive_bytes(entries));
  }
}

}  // namespace
}  // namespace ostrane
