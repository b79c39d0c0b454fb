#include <windows.h>

#include <thread>

#include "files/file_writer.h"
#include "files/paths.h"
#include "tool_fixture.h"

using namespace ostrane;

using files_windows_test = tool_test;

// Opens a file as another program, which lets others do only what `shared` allows.
static std::shared_ptr<void> opened_elsewhere(const fs::path& path, DWORD shared) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_NE(file, INVALID_HANDLE_VALUE);
  return {file, [](HANDLE opened) { CloseHandle(opened); }};
}

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
  const std::pair<DWORD, bool> cases[] = {
      {FILE_SHARE_READ, false}, {0, false}, {FILE_SHARE_READ, true}};
  for (const auto& [shared, is_closed_soon] : cases) {
    const bool can_read = shared != 0;
    SCOPED_TRACE(testing::Message() << shared << is_closed_soon);
    restart_with({{"a.txt", "a"}, {"ostrane.dat", new_archive}});
    auto game = opened_elsewhere(disk_path("C:\\work\\ostrane.dat"), shared);
    open_archive("C:\\work");
    EXPECT_EQ(Form1.List1.ListCount(), can_read ? 2 : 0);
    if (!can_read) {
      EXPECT_EQ(new_messages(), texts{"C:\\work\\ostrane.dat cannot be opened: it is in use."});
      user::click(Form2.Command2);
    }
    std::thread closing([&game, soon = is_closed_soon] {
      Sleep(150);
      if (soon) game.reset();
    });
    write("C:\\work\\a.txt", "new");
    build_in();
    closing.join();
    const texts messages = new_messages();
    EXPECT_EQ(messages == texts{in_use}, !is_closed_soon) << messages.front();
    game.reset();
    EXPECT_TRUE(read("C:\\work\\ostrane.dat") ==
                (is_closed_soon ? archive_bytes({{"A.TXT", "new"}}) : new_archive));
    EXPECT_EQ(names_in("C:\\work").size(), 2U);
  }
}

TEST_F(files_windows_test, PathsLongerThan260Characters) {
  std::string folder = "C:";
  for (char name = 'a'; name < 'j'; ++name) {
    folder += '\\' + std::string(40, name);
    fs::create_directory(files::for_system(disk_path(folder)));
  }
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
    build_in();
    EXPECT_TRUE(bytes_of(archive) == new_archive);
    EXPECT_EQ(GetFileAttributesW(archive.c_str()) & ~DWORD{FILE_ATTRIBUTE_ARCHIVE}, attributes);
    SetFileAttributesW(archive.c_str(), FILE_ATTRIBUTE_NORMAL);
  }
}
