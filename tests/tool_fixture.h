#pragma once

#include <gtest/gtest.h>

#include "failing_calls.h"
#include "files/little_endian.h"
#include "tool_on_drives.h"

namespace ostrane {

inline void open_archive(const std::vector<entry>& entries) { open_bytes(archive_bytes(entries)); }

inline void open_names(const texts& names) {
  std::vector<entry> entries;
  for (const std::string& name : names) entries.push_back({name, ""});
  open_archive(entries);
}

// `bytes` with a 32-bit number written at `at`.
inline std::string with_number(std::string bytes, std::size_t at, std::int32_t number) {
  files::put_int32(std::as_writable_bytes(std::span(bytes)), at, number);
  return bytes;
}

// The bytes of an index alone: a count and records of offset and name.
inline std::string index_bytes(std::int32_t count,
                               const std::vector<std::pair<std::int32_t, std::string>>& records) {
  std::string bytes = with_number(std::string(4, '\0'), 0, count);
  for (const auto& [offset, name] : records) {
    bytes += with_number(std::string(4, '\0') + name, 0, offset);
    bytes.resize(bytes.size() + 13 - name.size());
  }
  return bytes;
}

// Pseudo-random bytes.
inline std::string some_bytes(std::size_t count, unsigned seed = 1) {
  std::string bytes(count, ' ');
  std::minstd_rand numbers(seed + 1);
  for (char& c : bytes) c = static_cast<char>(numbers() >> 8U);
  return bytes;
}

// Restarts the tool with only these files in C:\work.
inline void restart_with(const file_map& files) {
  fs::remove_all(disk_path("C:\\work"));
  make_folder("C:\\work");
  for (const auto& [name, bytes] : files) write("C:\\work\\" + name, bytes);
  restart();
}

// The list of an archive with one entry, A.
const std::string saved_list = "A\r\n\r\n";

// Saves that list as D:\shplist.txt, while the calls of one name fail.
inline void save_list(const std::string& failing_name = "", int reason = 0) {
  restart("D:\\");
  open_archive({{"A", ""}});
  const failing_calls failing(failing_name, reason);
  user::click(Form1.mnu_save);
}

// Writes to the open archive, as another program.
inline void change_archive() { std::ofstream(disk_path("C:\\ostrane.dat"), std::ios::app) << " "; }

// Clicks the first row of that name.
inline void click_row(const std::string& name) {
  std::int32_t row = 0;
  while (row < Form1.List1.ListCount() && Form1.List1.List(row) != name) ++row;
  EXPECT_LT(row, Form1.List1.ListCount()) << "no row " << name;
  user::select_row(Form1.List1, row);
}

// A newly started tool on empty drives.
struct tool_test : testing::Test {
  tool_test() {
    root = make_temporary_folder();
    reset_drives();
    restart();
  }
  ~tool_test() override {
    files::override_system({});
    std::error_code left;
    fs::remove_all(root, left);
  }
};

}  // namespace ostrane
