#include <sys/stat.h>

#include "failing_calls.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/file_system.h"
#include "files/file_writer.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"
#include "tool_fixture.h"

// Case-sensitive names, links and pipes.
namespace ostrane {

using files_posix_test = tool_test;

TEST_F(files_posix_test, PrefersTheExactNameToOtherCases) {
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
TEST_F(files_posix_test, ReplacesLongNamesAndNeedsAFolderListing) {
  const fs::path name = u8"a" + files::to_utf8(std::string(120, '\xE9'));
  EXPECT_TRUE(files::name_as_text(files::lock_beside(name).native()));
  const failing_calls unlisted("list", EACCES);
  files::binary_file file;
  const files::write_rules rules = {.mode = files::write_mode::durable, .is_only_spelling = true};
  EXPECT_THROW(files::file_writer(file, {disk_path("D:\\x.txt"), u8""}, rules), files::file_error);
}

// The system copies a half, then a half of the rest, and then refuses.
TEST_F(files_posix_test, ReadsAndWritesWhatTheSystemDoesNotCopy) {
  static int calls = 0;
  static const files::system_call_table real = files::system_calls;
  const std::string bytes = some_bytes(600000);
  write("D:\\from", bytes);
  files::system_calls.copy_some = +[](int from, int to, std::size_t count) {
    return ++calls == 3 ? -EXDEV : real.copy_some(from, to, count / 2);
  };
  files::binary_file from;
  files::binary_file to;
  from.open_to_read(files::to_file_path("D:\\from"));
  files::file_writer kept(to, files::to_file_path("D:\\to"));
  to.write(std::as_bytes(std::span("before", 6)));
  while (to.write_from(from, SIZE_MAX) > 0) continue;
  kept.keep();
  files::system_calls = real;
  from.seek(600000 - 262144);  // as many bytes as were read
  EXPECT_EQ(from.next(1).size(), 1U);
  EXPECT_EQ(calls, 3);
  EXPECT_TRUE(read("D:\\to") == "before" + bytes);
}

TEST_F(files_posix_test, TheLastDriveIsTheFileSystemRoot) {
  files::set_drives({}, "C:\\");
  user::click(Form1.mnu_make);
  user::choose(Form5.Drive1, Form5.Drive1.ListCount() - 1);
  EXPECT_EQ((texts{Form5.Drive1.Drive(), Form5.Text1.Text()}), (texts{"z: [root]", "Z:\\"}));
  EXPECT_EQ(files::system_path("Z:\\tmp"), "/tmp");
}

}  // namespace ostrane
