#include <fstream>

#include "recording_screen.h"

namespace ostrane {
namespace {

const std::string closing = "Your new Ostrane.dat has been created and saved in:";

struct builder_test : tool_test {
  // Begins anew with these files alone in the folder of work.
  static void begin_with(const std::vector<entry>& files) {
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
  };
  for (const auto& [files, archive] : cases) {
    begin_with(files);
    build_in();
    EXPECT_EQ(new_messages().back(), closing + "C:\\work\\ostrane.dat");
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
       "With C:\\work\\b.txt the archive would be larger than 2 GB, which is the most that it can "
       "be."},
      {[&] { user::type(Form5.Text1, "Q:\\"); }, nothing, "There is no drive Q."},
      {[] { make_folder("C:\\work\\.OSTRANE.DAT.lock"); }, nothing,
       "C:\\work\\.OSTRANE.DAT.lock cannot be opened: it is a folder."},
  };
  for (const auto& c : cases) {
    begin_with({{"a.txt", "a"}, {"b.txt", "123"}, {"ostrane.dat", "the old one"}});
    open_archive({{"OPEN.TXT", "open"}});
    recording_screen screen;
    open_build_dialog();
    c.before();
    texts names = names_in("C:\\work");
    screen.at_refresh = [&] {
      if (screen.told.back().find("C:\\work\\a.txt") != std::string::npos) c.between();
    };
    user::click(Form5.Command1);
    const bool typed = Form5.Text1.Text() != "C:\\work";
    EXPECT_EQ(screen.told.back(),
              "dialog " + c.fault + " No new archive was made." +
                  (typed ? " The list shows the files of C:\\work. Double click on the folder to "
                           "build from."
                         : ""));
    if (!fs::exists(b)) std::erase(names, "b.txt");
    EXPECT_EQ(names_in("C:\\work"), names) << c.fault;
    EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
    EXPECT_EQ(tool_state.dat_index[1].offset, 42);
    EXPECT_EQ(tool_state.archive_path, "C:\\ostrane.dat");
    EXPECT_TRUE(Form5.Visible() && !Form3.Visible());
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
  EXPECT_EQ(tool_state.colour_table[9], forms_layer::rgb(2, 2, 2));
  click_row("NEW.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "new");
}

}  // namespace
}  // namespace ostrane
