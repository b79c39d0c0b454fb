#include <sys/stat.h>

#include <cstring>

#include "files/code_page.h"
#include "files/file_system.h"
#include "files/file_writer.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"
#include "tool_fixture.h"

using namespace ostrane;

// Links, pipes, hidden files, and names that are hard to find or to store.
using unusual_paths_test = tool_test;

TEST_F(unusual_paths_test, PrefersTheExactNameToOtherCases) {
  write("C:\\Mixed\\Name.TXT", "upper");
  write("C:\\Mixed\\\xC3\xA9t\xC3\xA9.txt", "accents");
  const fs::path found = files::to_file_path("c:\\mIXED\\name.txt").system;
  EXPECT_EQ(found, disk_path("C:\\Mixed\\Name.TXT"));
  EXPECT_TRUE(files::file_exists("C:\\mixed\\\xC9T\xC9.TXT"));
  write("C:\\Mixed\\name.txt", "lower");
  const fs::path exact = disk_path("C:\\Mixed\\name.txt");
  EXPECT_EQ(files::to_file_path("C:\\Mixed\\name.txt").system, exact);
  EXPECT_FALSE(files::file_exists("C:\\Mixed\\names.txt"));
  EXPECT_FALSE(files::file_exists("C:\\Mixed"));
}

// Hidden names are cut between characters, as some file systems refuse other bytes. A file that
// must be the only one of its spellings needs a listing of its folder.
TEST_F(unusual_paths_test, ReplacesLongNamesAndNeedsAFolderListing) {
  const fs::path name = u8"a" + files::to_utf8(std::string(120, '\xE9'));
  EXPECT_TRUE(files::name_as_text(files::lock_beside(name).native()));
  const failing_calls unlisted("list", EACCES);
  files::binary_file file;
  const files::write_rules rules = {.mode = files::write_mode::durable, .is_only_spelling = true};
  EXPECT_THROW(files::file_writer(file, {disk_path("D:\\x.txt"), u8""}, rules), files::file_error);
}

TEST_F(unusual_paths_test, TheLastDriveIsTheFileSystemRoot) {
  files::override_system({}, "C:\\");
  user::click(Form1.mnu_make);
  user::choose(Form5.Drive1, Form5.Drive1.ListCount() - 1);
  EXPECT_EQ((texts{Form5.Drive1.Drive(), Form5.Text1.Text()}), (texts{"z: [root]", "Z:\\"}));
  EXPECT_EQ(files::system_path("Z:\\tmp"), "/tmp");
}

// Hidden files of a list that another copy is writing are not reported.
TEST_F(unusual_paths_test, AcceptsTheLongestNamesAndReportsSkippedAndEqualOnes) {
  const std::string longest(255, 'n');
  const std::string folder = "C:\\" + std::string(255, 'f');
  for (const std::string name :
       {".HID.TXT", "\xCE\xA9.TXT", "a\\b", "ok", "AB", ".SHPLIST.TXT.lock",
        ".SHPLIST.TXT.000000000000001f.new", "renamed", "ab"}) {
    write_bytes(disk_path(folder) / name, name);
  }
  write_bytes(disk_path(folder) / longest, "long");
  fs::create_symlink("nothing", disk_path(folder + "\\link"));
  ASSERT_EQ(mkfifo(disk_path(folder + "\\pipe").c_str(), 0600), 0);
  open_build_dialog(folder);
  write(folder + "\\OK", "late");
  fs::rename(disk_path(folder + "\\renamed"), disk_path(folder + "\\Renamed"));
  user::click(Form5.Command1);
  EXPECT_EQ(
      new_messages(),
      (texts{
          "These files are not in the new Ostrane.dat:\n>.HID.TXT<: it is hidden"
          "\n>?.TXT<: its name has characters that the code page lacks"
          "\n>OK<: it came after the files were listed"
          "\n>a\\b<: its name contains a path separator"
          "\n>link<: it is a link that leads nowhere"
          "\n>pipe<: it is not a regular file"
          "\nThese entries of the new Ostrane.dat have the name of another:\n>ab<: its entry has "
          "the same name as that of AB",
          "Your new Ostrane.dat has been created and saved in:" + folder + "\\ostrane.dat"}));
  const std::vector<entry> entries = {
      {"AB", "AB"}, {"AB", "ab"}, {"NNNNNNNNNNNNN", "long"}, {"OK", "ok"}, {"RENAMED", "renamed"}};
  EXPECT_EQ(read(folder + "\\OSTRANE.DAT"), archive_bytes(entries));
}

TEST_F(unusual_paths_test, RefusesTooManyFiles) {
  make_folder("C:\\work");
  const auto name = [](std::size_t i) { return disk_path("C:\\work") / ("f" + std::to_string(i)); };
  for (std::size_t i = 0; i < 40000; ++i) std::ofstream{name(i)};
  for (std::size_t count = 40000; const std::size_t left : {count, max_files + 1, max_files}) {
    while (count > left) fs::remove(name(--count));
    restart();
    build_in();
    const std::string refusal = "The archive would have " + std::to_string(left) +
                                " entries. It can have at most 32766. No new archive was made.";
    EXPECT_EQ(new_messages().front() == refusal, left > max_files) << left;
  }
}

#ifdef NDEBUG
// Release builds check array and buffer bounds.
TEST(released_program, StopsAtAnOutOfBoundsAccess) {
  const std::vector<int> numbers(3);
  volatile std::size_t outside = 3;
  EXPECT_DEATH(static_cast<void>(numbers[outside]), "Assertion");
  char buffer[3];
  outside = 4;
  EXPECT_DEATH(std::memset(buffer, 0, outside), "buffer.overflow");
}
#endif
