#include <windows.h>

#include <fstream>

#include "handlers/start_up.h"
#include "platform/binary_file.h"
#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/paths.h"
#include "platform/system_name.h"
#include "tool_fixture.h"

// The system's own drives, names and marks.
namespace ostrane {
namespace {

using drives_windows_test = tool_test;

// Neither devices, whatever folder they are named in, nor hidden parts of files, nor other drives.
TEST_F(drives_windows_test, OpensNormalFilesAlone) {
  write("C:\\a.txt", "a");
  for (const char* name : {"NUL", "con", "COM1", "Com1.txt", "program", "a.txt:part", "D:x"}) {
    const std::string path = std::string("C:\\") + name;
    platform::binary_file file;
    EXPECT_THROW(file.open_to_read(path), platform::file_error) << path;
    EXPECT_THROW(file.open_to_write(path), platform::file_error) << path;
  }
  EXPECT_EQ(names_in("C:\\"), (texts{"a.txt", "program"}));
}

TEST_F(drives_windows_test, ListsWhatTheSystemDoesNotHide) {
  for (const char* name : {"shown", "HIDDEN", "SYSTEM", ".dotted", "\xC3\xA9"}) {
    write(std::string("D:\\") + name, "");
  }
  SetFileAttributesW((root / "d" / "HIDDEN").c_str(), FILE_ATTRIBUTE_HIDDEN);
  SetFileAttributesW((root / "d" / "SYSTEM").c_str(), FILE_ATTRIBUTE_SYSTEM);
  std::ofstream(root / "d" / L"\x03A9");
  EXPECT_EQ(platform::files_in("D:\\"), (texts{"shown", "\xE9"}));
  EXPECT_TRUE(platform::file_exists("d:\\\xC9"));
  EXPECT_EQ(platform::name_as_text(L"half a pair \xD800"), std::nullopt);
}

}  // namespace
}  // namespace ostrane
