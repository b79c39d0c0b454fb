#include <sys/stat.h>

#include "child_process.h"
#include "files/paths.h"
#include "files/text_file.h"
#include "tool_fixture.h"

using namespace ostrane;

using lists_test = tool_test;

TEST_F(lists_test, ReplacingAListKeepsPermissionsLinksAndOtherSpellings) {
  const fs::path list = disk_path("D:\\shplist.txt");
  write("D:\\shplist.txt", "old");
  write("D:\\SHPLIST.TXT", "another");
  const bool owner_changed = chown(list.c_str(), 12345, 54321) == 0;  // only root can
  chmod(list.c_str(), 04640);
  save_list();
  struct stat status = {};
  EXPECT_EQ(stat(list.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_TRUE(!owner_changed || (status.st_uid == 12345 && status.st_gid == 54321));
  EXPECT_EQ(files_in("D:\\"), (file_map{{"shplist.txt", saved_list}, {"SHPLIST.TXT", "another"}}));
  fs::remove(list);
  make_folder("D:\\far");
  fs::create_symlink(disk_path("D:\\far\\list"), list);
  for (const file_map& linked : {file_map{}, file_map{{"list", std::string(1000, 'o')}}}) {
    for (const auto& [name, old] : linked) write("D:\\far\\" + name, old);
    save_list("write_some", ENOSPC);
    EXPECT_EQ(files_in("D:\\far"), linked);
    save_list();
    EXPECT_TRUE(fs::is_symlink(list));
    EXPECT_EQ(files_in("D:\\far"), (file_map{{"list", saved_list}}));
  }
  // Through this link it would destroy the archive.
  fs::remove(list);
  fs::create_symlink(disk_path("C:\\ostrane.dat"), list);
  save_list();
  EXPECT_EQ(new_messages(), texts{"The list of files was not saved. shplist.txt cannot be written: "
                                  "it is the open archive."});
  EXPECT_EQ(read("C:\\ostrane.dat"), archive_bytes({{"A", ""}}));
}

// As in a read-only folder, in a sticky one and for a file that is a mount point. A write that is
// refused for such a reason leaves the old list.
TEST_F(lists_test, OverwritesAListThatCannotBeReplaced) {
  const std::tuple<const char*, std::vector<int>, bool> cases[] = {
      {"open_lock", {EACCES, EPERM, EROFS}, true},
      {"lock", {ENOLCK}, true},  // as on some network file systems
      {"open_new", {EACCES, EPERM, EROFS}, false},
      {"replace", {EACCES, EPERM, EBUSY}, true},
      {"write_some", {EACCES, EPERM, EROFS, EBUSY}, false},
      {"flush_to_disk", {EACCES, EPERM, EROFS, EBUSY}, false}};
  const std::string old(50, 'o');
  for (const auto& [call, reasons, is_overwritten] : cases) {
    for (const int reason : reasons) {
      SCOPED_TRACE(testing::Message() << call << reason);
      write("D:\\shplist.txt", old);
      save_list(call, reason);
      EXPECT_EQ(files_in("D:\\"), (file_map{{"shplist.txt", is_overwritten ? saved_list : old}}));
      EXPECT_EQ(new_messages().back().starts_with("The list of files was not"), !is_overwritten);
    }
  }
}

// Only the owner can open a new file until it has the permissions of the old one. A group that it
// cannot have gets those of others. Every user can lock.
TEST_F(lists_test, NewFileIsNotReadableForMoreUsersThanTheOldOne) {
  const auto mode_of = [](const char* name) { return fs::status(disk_path(name)).permissions(); };
  const auto mode_after_replacing = [&](mode_t mask, const char* failing_name) {
    umask(mask);
    failing_calls watched(failing_name, EPERM);
    watched.before("replace", [&] { EXPECT_EQ(mode_of("D:\\.OLD.lock"), fs::perms{0666}); });
    files::write_lines(files::to_file_path("D:\\old"), {});
    return mode_of("D:\\old");
  };
  write("D:\\old", "");
  chmod(disk_path("D:\\old").c_str(), 0664);
  const bool is_root = geteuid() == 0;
  EXPECT_TRUE(!is_root || chown(disk_path("D:\\old").c_str(), 65534, 12345) == 0);
  for (const char* own : {"", "d"}) fs::permissions(root / own, fs::perms::all);
  run_in_process([&] {
    drop_root();
    EXPECT_EQ(mode_after_replacing(077, ""), fs::perms{is_root && geteuid() != 0 ? 0644U : 0664U});
  });
  run_in_process(
      [&] { EXPECT_EQ(mode_after_replacing(022, "copy_permissions"), fs::perms{0600}); });
}

// The code page lacks Greek letters.
TEST_F(lists_test, UsesFoldersOutsideTheCodePage) {
  const fs::path folder = root / "d" / "\xCE\xA9";
  write_bytes(folder / "IconList.csv", "A;an icon");
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
