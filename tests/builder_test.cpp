#include "tool_fixture.h"

using namespace ostrane;

const std::string success = "Your new Ostrane.dat has been created and saved in:";

using builder_test = tool_test;

// A build that fails leaves the old archive, the folder and the index in memory unchanged.
TEST_F(builder_test, AFailedBuildChangesNothing) {
  const fs::path b = disk_path("C:\\work\\b.txt");
  const auto remove_b = [&] { fs::remove(b); };
  const auto append_to_b = [&] { std::ofstream(b) << "longer"; };
  const auto type_no_drive = [] { user::type(Form5.Text1, "Q:\\"); };
  const auto make_lock_folder = [] { make_folder("C:\\work\\.OSTRANE.DAT.lock"); };
  // The action before the click, the one after the files are measured, and the fault.
  const std::tuple<std::function<void()>, std::function<void()>, std::string> cases[] = {
      {remove_b, nothing, "C:\\work\\b.txt cannot be read: it is not there."},
      {nothing, remove_b, "C:\\work\\b.txt cannot be opened: it is not there."},
      {nothing, append_to_b, "C:\\work\\b.txt has changed its size during the copy."},
      {[&] { fs::resize_file(b, 2147483647); }, nothing,
       "C:\\work\\b.txt does not fit: the archive would be larger than 2 GB, which is the most "
       "that it can be."},
      {type_no_drive, nothing, "Q:\\ cannot be found: there is no such drive."},
      {make_lock_folder, nothing, "C:\\work\\.OSTRANE.DAT.lock cannot be opened: it is a folder."},
  };
  for (const auto& [before_click, between_passes, fault] : cases) {
    restart_with({{"a.txt", "a"}, {"b.txt", "123"}, {"ostrane.dat", "the old one"}});
    open_archive({{"OPEN.TXT", "open"}});
    open_build_dialog();
    before_click();
    texts names = names_in("C:\\work");
    failing_calls watched;
    watched.before("open_new", between_passes);
    user::click(Form5.Command1);
    const bool typed = Form5.Text1.Text() != "C:\\work";
    const char* hint =
        " The list shows the files of C:\\work. Double click on the folder to build from.";
    EXPECT_EQ(new_messages(), texts{fault + " No new archive was made." + (typed ? hint : "")});
    if (!fs::exists(b)) std::erase(names, "b.txt");
    EXPECT_EQ(names_in("C:\\work"), names) << fault;
    EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
    EXPECT_EQ(tool_state.dat_index[1].offset, 42);
    EXPECT_EQ(tool_state.archive_path, "C:\\ostrane.dat");
    EXPECT_TRUE(Form5.Visible() && !Form3.Visible());
  }
}

// The list of files is still that of the other folder.
TEST_F(builder_test, FindsTheListedFilesInATypedFolderInAnyCase) {
  restart_with({{"a.txt", "listed"}, {"b.txt", "listed"}});
  for (const char* name : {"A.TXT", "b.txt", "c.txt"})
    write("C:\\typed\\" + std::string(name), name);
  open_build_dialog();
  user::type(Form5.Text1, "C:\\typed");
  user::click(Form5.Command1);
  EXPECT_EQ(read("C:\\typed\\OSTRANE.DAT"),
            archive_bytes({{"A.TXT", "A.TXT"}, {"B.TXT", "b.txt"}}));
  EXPECT_EQ(new_messages(),
            (texts{"These files are not in the new Ostrane.dat:\n>c.txt<: the list is "
                   "that of another folder",
                   success + "C:\\typed\\ostrane.dat"}));
}

// The new archive is in place if the folder cannot be listed afterwards.
TEST_F(builder_test, ReportsThatSkippedFilesCannotBeListed) {
  restart_with({{"A.TXT", "a"}});
  failing_calls watched;
  watched.before("flush_folder", [] { fs::rename(root / "c" / "work", root / "c" / "made"); });
  build_in();
  EXPECT_EQ(new_messages(),
            (texts{"The files that are not in the new Ostrane.dat could not be listed: "
                   "C:\\work\\ cannot be read: it is not there.",
                   success + "C:\\work\\ostrane.dat"}));
  EXPECT_EQ(read("C:\\made\\OSTRANE.DAT"), archive_bytes({{"A.TXT", "a"}}));
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
