#include <sys/stat.h>

#include <fstream>

#include "child_process.h"
#include "files/code_page.h"
#include "handlers/start_up.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using lists_test = tool_test;

// For the saved list and for the report.
TEST_F(lists_test, AReplacedListKeepsPermissionsLinksAndOtherSpellings) {
  const std::string saved = "A\r\n\r\n";
  for (const char* name : {"D:\\shplist.txt", "C:\\Shiplist-compare.txt"}) {
    const fs::path list = disk_path(name);
    const fs::path other = list.parent_path() / files::upper_case(list.filename().string());
    const auto save = [&] {
      restart("D:\\");
      write("D:\\x.txt", "X");
      open_archive({{"A", ""}});
      user::click(Form1.mnu_save);
      compare_with("D:\\", "x.txt");
    };
    write(name, "old");
    std::ofstream(other) << "another";
    chmod(list.c_str(), 0640);
    const bool owner_changed = chown(list.c_str(), 12345, 54321) == 0;  // only root can
    save();
    struct stat status = {};
    EXPECT_EQ(stat(list.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_TRUE(!owner_changed || (status.st_uid == 12345 && status.st_gid == 54321));
    const std::string bytes = bytes_of(list);
    EXPECT_NE(bytes, "old");
    EXPECT_EQ(bytes_of(other), "another");
    for (const bool dangling : {false, true}) {
      fs::remove(list);
      make_folder("D:\\far");
      fs::create_symlink(disk_path("D:\\far\\list"), list);
      if (!dangling) write("D:\\far\\list", std::string(1000, 'o'));
      save();
      EXPECT_TRUE(fs::is_symlink(list));
      EXPECT_EQ(files_in("D:\\far"), (file_map{{"list", bytes}}));
      fs::remove_all(disk_path("D:\\far"));
    }
    fs::remove(list);
  }
}

// Such a list would destroy the archive.
TEST_F(lists_test, NoListIsWrittenOverTheOpenArchive) {
  restart("D:\\");
  open_archive({{"A", "bytes"}});
  fs::create_symlink(disk_path("C:\\ostrane.dat"), disk_path("D:\\shplist.txt"));
  user::click(Form1.mnu_save);
  EXPECT_EQ(new_messages(), texts{"The list of files was not saved. shplist.txt cannot be written: "
                                  "it leads to the open archive."});
  EXPECT_EQ(read("C:\\ostrane.dat"), archive_bytes({{"A", "bytes"}}));
}

TEST_F(lists_test, AListInAReadOnlyFolderIsOverwritten) {
  run_in_process([&] {
    write("D:\\ro\\shplist.txt", std::string(1000, 'o'));
    for (const char* own : {"", "c", "d", "c/program", "d/ro/shplist.txt"}) {
      fs::permissions(root / own, fs::perms::all);
    }
    fs::permissions(disk_path("D:\\ro"), fs::perms::others_read | fs::perms::others_exec);
    drop_root();
    restart("D:\\ro");
    open_archive({{"A", ""}});
    user::click(Form1.mnu_save);
    EXPECT_EQ(files_in("D:\\ro"), (file_map{{"shplist.txt", "A\r\n\r\n"}}));
  });
  fs::permissions(disk_path("D:\\ro"), fs::perms::all);
}

// The code page lacks Greek letters.
TEST_F(lists_test, UsesFoldersOutsideTheCodePage) {
  const fs::path folder = root / "d" / "\xCE\xA9";
  fs::create_directories(folder);
  std::ofstream(folder / "IconList.csv") << "A;an icon";
  run_in_process([&] {
    fs::current_path(folder);
    restart("");
    start_tool(folder);
    write("C:\\shplist.txt", "elsewhere");
    open_archive({{"A.TXT", ""}});
    click_row("A.TXT");
    EXPECT_EQ(Form1.Frame1.Caption(), "A.TXT - an icon");
    user::click(Form1.mnu_save);
    EXPECT_EQ(bytes_of(folder / "shplist.txt"), "A.TXT\r\n\r\n");
    EXPECT_EQ(read("C:\\shplist.txt"), "elsewhere");
  });
}

}  // namespace
}  // namespace ostrane
