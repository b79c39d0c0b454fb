#include <windows.h>

#include <fstream>

#include "platform/binary_file.h"
#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/paths.h"
#include "platform/replaced_file.h"
#include "platform/system_name.h"
#include "tool_fixture.h"

// The system's own drives, names and marks.
namespace ostrane {
namespace {

class drives_windows_test : public tool_test {
 protected:
  // On the drives of the system, with the current folder of the process.
  static void begin_on_system_drives() {
    platform::set_drives({});
    begin_tool("C:\\");
  }
  static void choose_drive(char letter) {
    const texts& rows = Form2.Drive1.rows();
    const auto at = std::find_if(rows.begin(), rows.end(), [letter](const std::string& row) {
      return row.starts_with(std::string{letter, ':', ' ', '['}) && row.ends_with("]");
    });
    ASSERT_NE(at, rows.end()) << letter;
    user::choose(Form2.Drive1, static_cast<std::int32_t>(at - rows.begin()));
  }
};

// The test's own folder lies on C:, the sample beside the program.
TEST_F(drives_windows_test, ReadsArchivesByRealPaths) {
  write("C:\\ostrane.dat", archive_bytes({{"OWN.TXT", "own"}}));
  const std::pair<fs::path, const char*> archives[] = {
      {root / "c", "OWN.TXT"}, {fs::absolute(SAMPLE_FOLDER).make_preferred(), "VISTA.SHP"}};
  for (const auto& [folder, entry_name] : archives) {
    begin_on_system_drives();
    const std::string path = platform::tool_path(folder);
    ASSERT_EQ(path, folder.string());
    user::click(Form1.mnu_open);
    choose_drive(static_cast<char>(path.front() | 0x20));
    Form2.Dir1.Path = path;
    EXPECT_EQ(Form2.File1.ListCount(), 1);
    user::click(Form2.Command1);
    EXPECT_EQ(tool_state.archive_path, path + "\\ostrane.dat");
    click_row(entry_name);
  }
  EXPECT_EQ(new_messages(), texts{});
}

TEST_F(drives_windows_test, BeginsInTheCurrentFolderOfTheProcess) {
  begin_on_system_drives();
  EXPECT_EQ(platform::current_folder(), fs::current_path().string());
  EXPECT_EQ(platform::full_path("x"), (fs::current_path() / "x").string());
}

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

// A mark of read-only neither saves a file from being deleted or replaced, nor goes if that fails.
TEST_F(drives_windows_test, HeedsNoReadOnlyMark) {
  const auto mark = [this](const std::string& path) {
    write(path, "old");
    SetFileAttributesW(place(path).c_str(), FILE_ATTRIBUTE_READONLY);
  };
  mark("C:\\deleted");
  platform::delete_file("C:\\deleted");
  EXPECT_FALSE(exists("C:\\deleted"));
  mark("C:\\replaced");
  platform::replaced_file file("C:\\replaced");
  file.put_in_place();
  EXPECT_EQ(read("C:\\replaced"), "");
  mark("C:\\in use");
  const HANDLE held = CreateFileW(place("C:\\in use").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_THROW(platform::delete_file("C:\\in use"), platform::file_error);
  EXPECT_NE(GetFileAttributesW(place("C:\\in use").c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
  CloseHandle(held);
}

}  // namespace
}  // namespace ostrane
