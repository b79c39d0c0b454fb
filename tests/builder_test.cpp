#include <fstream>

#include "recording_screen.h"

namespace ostrane {
namespace {

const std::string closing = "Your new Ostrane.dat has been created and saved in:";

class builder_test : public tool_test {
 protected:
  // Begins anew with these files alone in the folder of work.
  void begin_with(const std::vector<entry>& files) {
    fs::remove_all(place("C:\\work"));
    make_folder("C:\\work");
    for (const entry& file : files) write("C:\\work\\" + file.name, file.bytes);
    begin();
  }
};

TEST_F(builder_test, WritesTheIndexAndTheFilesBehindIt) {
  const texts names = {" lead.txt", "abcdefghi.shp", "bcdefghij.shpx",
                       "game.pal",  "My file.shp",   "\xC3\xA9t\xC3\xA9"};
  const texts records = {
      "LEAD.TXT", "ABCDEFGHI.SHP", "BCDEFGHIJ.SHP", "GAME.PAL", std::string("MY\0FILE.SHP", 11),
      "\xC9T\xC9"};
  std::vector<entry> named = {{".hidden", "no entry"}};
  std::vector<entry> entries;
  for (std::size_t i = 0; i < names.size(); ++i) {
    named.push_back({names[i], some_bytes(i)});
    entries.push_back({records[i], some_bytes(i)});
  }
  const std::pair<std::vector<entry>, std::string> cases[] = {
      {{}, index_bytes(1, {{21, ""}})},
      {named, archive_bytes(entries)},
      {{{"b.txt", "45"}, {"A.shp", "123"}},
       std::string("\3\0\0\0"
                   "\x37\0\0\0A.SHP\0\0\0\0\0\0\0\0"
                   "\x3A\0\0\0B.TXT\0\0\0\0\0\0\0\0"
                   "\x3C\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
                   "12345",
                   60)},
  };
  for (const auto& [files, archive] : cases) {
    begin_with(files);
    build_in();
    EXPECT_EQ(new_messages(), texts{closing + "C:\\work\\ostrane.dat"});
    EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), archive);
    EXPECT_EQ(names_in("C:\\work").size(), files.size() + 1);
  }
}

// Whatever the case of its name the old archive is no entry, and goes: none is left beside the new.
TEST_F(builder_test, ReplacesTheOldArchiveInWhateverCaseItsNameIs) {
  for (const texts& old : {texts{"ostrane.dat"}, texts{"OSTRANE.DAT"},
                           texts{"oStrane.dat", "ostrane.dat"}, texts{".OSTRANE.DAT.new"}}) {
    begin_with({{"a.txt", "a"}});
    for (const std::string& name : old) {
      write("C:\\work\\" + name, some_bytes(500));
      fs::permissions(place("C:\\work\\" + name), fs::perms::owner_read);
    }
    build_in();
    EXPECT_EQ(names_in("C:\\work").size(), 2U) << old.front();
    EXPECT_EQ(read("C:\\work\\a.txt"), "a");
    EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "a"}}));
  }
}

// With no archive open the menus stay as they are.
TEST_F(builder_test, AFieldWithoutAFolderMeansTheRootOfTheCurrentDrive) {
  write("C:\\work\\a.txt", "in work");
  write("C:\\a.txt", "in the root");
  begin("C:\\work");
  user::click(Form1.mnu_make);
  user::click(Form5.Command1);
  EXPECT_EQ(new_messages(), texts{closing + "\\ostrane.dat"});
  EXPECT_EQ(read("C:\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "in the root"}}));
  EXPECT_EQ(tool_state.dat_index[1].offset, 49);
  EXPECT_EQ(Form1.List1.ListCount(), 0);
  EXPECT_FALSE(Form1.mnu_ext.Enabled() || Form1.mnu_save.Enabled());
}

// A build that fails leaves the old archive, the folder and what the tool knows as they were.
TEST_F(builder_test, AFailedBuildLeavesEverythingAsItWas) {
  const fs::path b = place("C:\\work\\b.txt");
  const auto nothing = [] {};
  const auto remove_b = [&] { fs::remove(b); };
  const struct {
    std::function<void()> before;   // the click
    std::function<void()> between;  // the two passes
    std::string fault;
  } cases[] = {
      {remove_b, nothing, "C:\\work\\b.txt cannot be read: it is not there."},
      {nothing, remove_b, "C:\\work\\b.txt cannot be opened: it is not there."},
      {nothing, [&] { std::ofstream(b) << "longer"; },
       "C:\\work\\b.txt has changed its size meanwhile."},
      {[&] { fs::resize_file(b, 2147483647); }, nothing,
       "With C:\\work\\b.txt the archive would be larger than 2 GB"},
      {[&] { user::type(Form5.Text1, "Q:\\"); }, nothing, "There is no drive Q:"},
  };
  for (const auto& c : cases) {
    begin_with({{"a.txt", "a"}, {"b.txt", "123"}, {"ostrane.dat", "the old one"}});
    open_archive({{"OPEN.TXT", "open"}});
    recording_screen screen;
    open_build_dialog();
    c.before();
    texts names = names_in("C:\\work");
    screen.at_refresh = [&] {
      if (screen.texts.back().find("C:\\work\\a.txt") != std::string::npos) c.between();
    };
    user::click(Form5.Command1);
    ASSERT_EQ(screen.messages.size(), 1U) << c.fault;
    EXPECT_TRUE(screen.messages[0].starts_with(c.fault)) << screen.messages[0];
    EXPECT_TRUE(screen.messages[0].ends_with(" No new archive was made."));
    if (!fs::exists(b)) std::erase(names, "b.txt");
    EXPECT_EQ(names_in("C:\\work"), names) << c.fault;
    EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
    EXPECT_EQ(tool_state.dat_index[1].offset, 42);
    EXPECT_EQ(tool_state.archive_path, "C:\\ostrane.dat");
    EXPECT_TRUE(Form5.Visible() && !Form3.Visible() && !Form1.Visible());
  }
}

// Rows, views and extractions must not mix the archive that was open with the new one.
TEST_F(builder_test, TheNewArchiveBecomesTheOpenOneIfOneWasOpen) {
  begin_with({{"new.txt", "new"}, {"game.pal", std::string(1024, 2)}});
  open_archive({{"OLD.TXT", "old"}, {"X", "x"}, {"GAME.PAL", std::string(1024, 1)}});
  open_build_dialog();
  write("C:\\work\\unlisted.txt", "came behind the list");
  user::click(Form5.Command1);
  EXPECT_EQ(tool_state.archive_path, "C:\\work\\ostrane.dat");
  EXPECT_EQ(tool_state.archive_path_copy, tool_state.archive_path);
  EXPECT_EQ(Form1.List1.ListCount(), 3);
  EXPECT_EQ(tool_state.colour_table[9], platform::rgb(2, 2, 2));
  click_row("NEW.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "new");
}

TEST_F(builder_test, TellsEachFileAndGivesTheMainWindowBackBeforeTheClosingMessage) {
  begin_with({{"A b.txt", "a"}});
  recording_screen screen;
  open_build_dialog();
  screen.at_refresh = [] { expect_progress("Ostrane.dat tool - Make new Ostrane.dat", true); };
  screen.at_message = [] {
    expect_progress("Ostrane.dat tool ", false);
    EXPECT_TRUE(Form1.Visible() && !Form5.Visible());
  };
  user::click(Form5.Command1);
  const std::string calculation = "Calculation internal offsets for the files in Ostrane.dat";
  EXPECT_EQ(screen.texts, (texts{"", calculation, calculation,
                                 "Current File : C:\\work\\A b.txt\r\nCurrent File Number:  0\r\n"
                                 "Total Number of Files:  1"}));
  EXPECT_EQ(screen.messages, texts{closing + "C:\\work\\ostrane.dat"});
}

// In building, and in extracting what was built.
TEST_F(builder_test, BarsMoveAtTheirPaces) {
  using values = std::vector<float>;
  const struct {
    std::size_t files, size;
    values built, extracted;  // the ends of both bars, and where the total and the other one went
  } cases[] = {
      {0, 0, {1, 100}, {0, 100}},
      {48, 1, {49, 1}, {47, 1}},
      {49, 1, {50, 1}, {48, 1, 48}},
      {96, 1, {97, 1}, {95, 1, 48}},
      {97, 1, {98, 1, 96}, {96, 1, 48}},
      {194, 0, {195, 0, 96, 193}, {193, 0, 48, 97, 146}},
      {4, 700, {5, 700}, {3, 700, 384, 128}},
      {3, 1024, {4, 1024}, {2, 1024, 128, 256}},
      {2, 1025, {3, 1025, 1024}, {1, 1025, 1024}},
  };
  recording_screen screen;
  const auto bars = [&screen] {
    values all = {Form3.ProgressBar2.Max(), Form3.ProgressBar1.Max()};
    all.insert(all.end(), screen.values_2.begin(), screen.values_2.end());
    all.insert(all.end(), screen.values_1.begin(), screen.values_1.end());
    screen.begin_bars();
    return all;
  };
  for (const auto& c : cases) {
    std::vector<entry> files;
    while (files.size() < c.files)
      files.push_back({std::to_string(files.size()), std::string(c.size, 'x')});
    begin_with(files);
    screen.begin_bars();
    build_in();
    EXPECT_EQ(bars(), c.built);
    open_archive("C:\\work");
    extract_into("D:\\");
    EXPECT_EQ(bars(), c.extracted);
  }
}

}  // namespace
}  // namespace ostrane
