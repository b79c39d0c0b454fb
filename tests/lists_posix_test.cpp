#include <sys/stat.h>

#include "child_process.h"
#include "failing_calls.h"
#include "files/code_page.h"
#include "files/paths.h"
#include "files/text_file.h"
#include "tool_fixture.h"

namespace ostrane {

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
    const bool owner_changed = chown(list.c_str(), 12345, 54321) == 0;  // only root can
    chmod(list.c_str(), 04640);
    save();
    struct stat status = {};
    EXPECT_EQ(stat(list.c_str(), &status), 0);
    EXPECT_EQ(fs::status(list).permissions(), fs::perms{0640});
    EXPECT_TRUE(!owner_changed || (status.st_uid == 12345 && status.st_gid == 54321));
    const std::string bytes = bytes_of(list);
    EXPECT_NE(bytes, "old");
    EXPECT_EQ(bytes_of(other), "another");
    for (const file_map& linked : {file_map{{"list", std::string(1000, 'o')}}, file_map{}}) {
      fs::remove(list);
      fs::remove_all(disk_path("D:\\far"));
      make_folder("D:\\far");
      fs::create_symlink(disk_path("D:\\far\\list"), list);
      for (const auto& [file, old] : linked) write("D:\\far\\" + file, old);
      {
        const failing_calls full("write_some", ENOSPC);
        save();
      }
      EXPECT_EQ(files_in("D:\\far"), linked);
      save();
      EXPECT_TRUE(fs::is_symlink(list));
      EXPECT_EQ(files_in("D:\\far"), (file_map{{"list", bytes}}));
    }
    fs::remove(list);
  }
}

// Such a list would destroy the archive.
TEST_F(lists_test, NoListIsWrittenOverTheOpenArchive) {
  restart("D:\\");
  open_archive({{"A", "bytes"}});
  for (const char* target : {"ostrane.dat", "oSTRANE.dat"}) {
    fs::remove(disk_path("D:\\shplist.txt"));
    fs::create_symlink(disk_path("C:\\") / target, disk_path("D:\\shplist.txt"));
    user::click(Form1.mnu_save);
    EXPECT_EQ(new_messages(),
              texts{"The list of files was not saved. shplist.txt cannot be written: "
                    "it leads to the open archive."});
  }
  EXPECT_EQ(read("C:\\ostrane.dat"), archive_bytes({{"A", "bytes"}}));
}

// As in a read-only folder, in a sticky one and for a file that is a mount point.
TEST_F(lists_test, AListThatCannotBeReplacedIsOverwritten) {
  for (const auto& [call, reason] : {std::pair{"open_lock", EACCES}, {"replace", EBUSY}}) {
    write("D:\\shplist.txt", std::string(1000, 'o'));
    restart("D:\\");
    open_archive({{"A", ""}});
    const failing_calls failing(call, reason);
    user::click(Form1.mnu_save);
    EXPECT_EQ(files_in("D:\\"), (file_map{{"shplist.txt", "A\r\n\r\n"}}));
  }
}

// A new file is its owner's alone until it has the permissions of the old one. A group that it
// cannot have gets those of others. Every user can lock.
TEST_F(lists_test, ANewFileIsNeverReadableForMoreUsersThanTheOld) {
  const auto mode_of = [](const char* name) { return fs::status(disk_path(name)).permissions(); };
  const auto mode_after = [&] {
    write("D:\\old", "");
    chmod(disk_path("D:\\old").c_str(), 0664);
    if (geteuid() == 0 && chown(disk_path("D:\\old").c_str(), 65534, 12345) != 0) _exit(cannot_run);
    fs::permissions(root / "d", fs::perms::all);
    return [&](mode_t mask) {
      umask(mask);
      files::text_writer writer(files::to_file_path("D:\\old"));
      EXPECT_EQ(mode_of("D:\\.OLD.lock"), fs::perms{0666});
      writer.close();
      return mode_of("D:\\old");
    };
  };
  run_in_process([&] {
    const auto replaced = mode_after();
    const failing_calls failing("copy_permissions", EPERM);
    EXPECT_EQ(replaced(022), fs::perms{0600});
  });
  run_in_process([&] {
    fs::permissions(root, fs::perms::all);
    const auto replaced = mode_after();
    drop_root();
    EXPECT_EQ(replaced(077), fs::perms{geteuid() == 0 ? 0664U : 0644U});
  });
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

}  // namespace ostrane
