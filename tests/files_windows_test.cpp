#include <windows.h>

#include <thread>

#include "files/binary_file.h"
#include "files/file_error.h"
#include "files/file_writer.h"
#include "files/paths.h"
#include "tool_fixture.h"

namespace ostrane {

using files_windows_test = tool_test;

// Another program that has a file open. It lets others do only what `shared` allows.
class other_program {
 public:
  other_program(const fs::path& path, DWORD shared)
      : file_(CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(file_, INVALID_HANDLE_VALUE);
  }
  other_program(const other_program&) = delete;
  other_program& operator=(const other_program&) = delete;
  ~other_program() { close(); }
  void close() {
    if (std::exchange(is_open_, false)) CloseHandle(file_);
  }

 private:
  HANDLE file_;
  bool is_open_ = true;
};

const std::string new_archive = archive_bytes({{"A.TXT", "a"}});

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

// As the game does. A virus scanner closes the file after a moment.
TEST_F(files_windows_test, FilesThatOtherProgramsHold) {
  const std::string in_use =
      "C:\\work\\OSTRANE.DAT cannot be written: it is in use. No new archive "
      "was made.";
  const struct {
    DWORD shared;
    bool can_read, is_closed_soon;
  } cases[] = {{FILE_SHARE_READ, true, false}, {0, false, false}, {FILE_SHARE_READ, true, true}};
  for (const auto& [shared, can_read, is_closed_soon] : cases) {
    SCOPED_TRACE(testing::Message() << shared << is_closed_soon);
    restart_with({{"a.txt", "a"}, {"ostrane.dat", new_archive}});
    other_program game(disk_path("C:\\work\\ostrane.dat"), shared);
    open_archive("C:\\work");
    EXPECT_EQ(Form1.List1.ListCount(), can_read ? 2 : 0);
    if (!can_read) {
      EXPECT_EQ(new_messages(), texts{"C:\\work\\ostrane.dat cannot be opened: it is in use."});
      user::click(Form2.Command2);
    }
    new_messages();
    std::thread closing;
    if (is_closed_soon) {
      closing = std::thread([&game] {
        Sleep(150);
        game.close();
      });
    }
    write("C:\\work\\a.txt", "new");
    build_in("C:\\work");
    if (closing.joinable()) closing.join();
    const texts messages = new_messages();
    EXPECT_EQ(messages == texts{in_use}, !is_closed_soon) << messages.front();
    game.close();
    EXPECT_TRUE(read("C:\\work\\ostrane.dat") ==
                (is_closed_soon ? archive_bytes({{"A.TXT", "new"}}) : new_archive));
    EXPECT_EQ(names_in("C:\\work").size(), 2U);
  }
}

TEST_F(files_windows_test, PathsLongerThan260Characters) {
  std::string folder = "C:\\";
  for (int i = 0; i < 9; ++i) {
    folder += std::string(40, static_cast<char>('a' + i));
    fs::create_directory(files::for_system(disk_path(folder)));
    folder += '\\';
  }
  folder.pop_back();
  ASSERT_GT(folder.size(), 360U);
  std::ofstream(files::for_system(disk_path(folder + "\\a.txt"))) << "a";
  build_in(folder);
  EXPECT_TRUE(new_messages().back().starts_with("Your new Ostrane.dat"));
  open_archive(folder);
  EXPECT_EQ(Form1.List1.ListCount(), 2);
  fs::remove(files::for_system(disk_path(folder + "\\a.txt")));
  extract_into(folder);
  EXPECT_EQ(bytes_of(files::for_system(disk_path(folder + "\\A.TXT"))), "a");
}

// The new archive keeps the attributes of the old one.
TEST_F(files_windows_test, KeepsAttributes) {
  constexpr DWORD kept[] = {FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_HIDDEN,
                            FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY};
  for (const DWORD attributes : kept) {
    restart_with({{"a.txt", "a"}, {"ostrane.dat", "old"}});
    const fs::path archive = disk_path("C:\\work\\OSTRANE.DAT");
    SetFileAttributesW(archive.c_str(), attributes);
    build_in("C:\\work");
    EXPECT_TRUE(bytes_of(archive) == new_archive);
    EXPECT_EQ(GetFileAttributesW(archive.c_str()) & ~DWORD{FILE_ATTRIBUTE_ARCHIVE}, attributes);
    SetFileAttributesW(archive.c_str(), FILE_ATTRIBUTE_NORMAL);
  }
}

}  // namespace ostrane
