
#include "failing_calls.h"
#include "files/binary_file.h"
#include "files/file_error.h"
#include "files/file_writer.h"
#include "files/paths.h"
#include "tool_fixture.h"

namespace ostrane {

using files_windows_test = tool_test;

// No devices in any folder, no alternate data streams, no other drives.
TEST_F(files_windows_test, OpensNormalFilesOnly) {
  write("C:\\a.txt", "a");
  for (const char* name : {"NUL", "con", "COM1", "Com1.txt", "program", "a.txt:part", "D:x"}) {
    const std::string path = std::string("C:\\") + name;
    files::binary_file file;
    EXPECT_THROW(file.open_to_read(files::to_file_path(path)), files::file_error) << path;
    EXPECT_THROW(files::file_writer(file, files::to_file_path(path), {}), files::file_error)
        << path;
  }
  EXPECT_EQ(names_in("C:\\"), (texts{"a.txt", "program"}));
}

// A file must be closed before it can be replaced. Each call fails in turn.
TEST_F(files_windows_test, ReplacesAListByRenaming) {
  for (int at = 0;; ++at) {
    save_list();
    write("D:\\shplist.txt", "old");
    const failing_calls failing(at, {.reason = EIO});
    user::click(Form1.mnu_save);
    const std::string list = read("D:\\shplist.txt");
    EXPECT_TRUE((list == "old" && failing.happened()) || list == saved_list) << at << list;
    if (!failing.happened()) break;
  }
}

}  // namespace ostrane
