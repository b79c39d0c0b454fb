#include <fstream>

#include "recording_screen.h"

namespace ostrane {

const std::string success = "Your new Ostrane.dat has been created and saved in:";

struct builder_test : tool_test {
  // Restarts the tool with only these files in C:\work.
  static void restart_with(const std::vector<entry>& files) {
    fs::remove_all(disk_path("C:\\work"));
    make_folder("C:\\work");
    for (const entry& file : files) write("C:\\work\\" + file.name, file.bytes);
    restart();
  }
};

TEST_F(builder_test, WritesTheIndexThenTheFiles) {
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
    restart_with(files);
    build_in();
    EXPECT_EQ(new_messages().back(), success + "C:\\work\\ostrane.dat");
    EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), archive);
    EXPECT_EQ(names_in("C:\\work").size(), files.size() + 1);
  }
}

// The old archive is no entry and is removed, whatever the case of its name.
TEST_F(builder_test, ReplacesAnOldArchiveOfAnyCase) {
  for (const texts& old : {texts{"ostrane.dat"}, texts{"OSTRANE.DAT"},
                           texts{"oStrane.dat", "ostrane.dat"}, texts{".OSTRANE.DAT.new"}}) {
    restart_with({{"a.txt", "a"}});
    for (const std::string& name : old) {
      write("C:\\work\\" + name, some_bytes(500));
      fs::permissions(disk_path("C:\\work\\" + name), fs::perms::owner_read);
    }
    build_in();
    EXPECT_EQ(names_in("C:\\work").size(), 2U) << old.front();
    EXPECT_EQ(read("C:\\work\\a.txt"), "a");
    EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "a"}}));
  }
}

// A build that fails leaves the old archive, the folder and the index in memory unchanged.
TEST_F(builder_test, AFailedBuildChangesNothing) {
  const fs::path b = disk_path("C:\\work\\b.txt");
  const auto nothing = [] {};
  const auto remove_b = [&] { fs::remove(b); };
  const struct {
    std::function<void()> before_click, between_passes;
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
    restart_with({{"a.txt", "a"}, {"b.txt", "123"}, {"ostrane.dat", "the old one"}});
    open_archive({{"OPEN.TXT", "open"}});
    recording_screen screen;
    open_build_dialog();
    c.before_click();
    texts names = names_in("C:\\work");
    screen.on_refresh = [&] {
      if (screen.log.back().find("C:\\work\\a.txt") != std::string::npos) c.between_passes();
    };
    user::click(Form5.Command1);
    const bool typed = Form5.Text1.Text() != "C:\\work";
    EXPECT_EQ(screen.log.back(),
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

// The list, the views and extraction must not mix the previous archive with the new one.
TEST_F(builder_test, OpensTheNewArchiveIfOneWasOpen) {
  restart_with({{"new.txt", "new"}, {"game.pal", std::string(1024, 2)}});
  open_archive({{"OLD.TXT", "old"}, {"X", "x"}, {"GAME.PAL", std::string(1024, 1)}});
  open_build_dialog();
  write("C:\\work\\unlisted.txt", "not listed yet");
  user::click(Form5.Command1);
  EXPECT_EQ(tool_state.archive_path, "C:\\work\\ostrane.dat");
  EXPECT_EQ(tool_state.archive_path_copy, tool_state.archive_path);
  EXPECT_EQ(Form1.List1.ListCount(), 3);
  EXPECT_EQ(tool_state.colour_table[9], forms_layer::rgb(2, 2, 2));
  click_row("NEW.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "new");
}

}  // namespace ostrane
