#pragma once

#include <gtest/gtest.h>

#include <random>

#include "data/archive_bytes.h"
#include "files/drives.h"
#include "files/little_endian.h"
#include "tool_on_drives.h"

namespace ostrane {

inline void open_archive(const std::vector<entry>& entries) { open_bytes(archive_bytes(entries)); }

// `bytes` with another number of 32 bits in one place.
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

// `count` bytes that differ from their neighbours and from those of another seed.
inline std::string some_bytes(std::size_t count, unsigned seed = 1) {
  std::string bytes(count, ' ');
  std::minstd_rand numbers(seed + 1);
  for (char& c : bytes) c = static_cast<char>(numbers() >> 8U);
  return bytes;
}

// The first row of that name.
inline void click_row(const std::string& name) {
  std::int32_t row = 0;
  while (row < Form1.List1.ListCount() && Form1.List1.List(row) != name) ++row;
  EXPECT_LT(row, Form1.List1.ListCount()) << "no row " << name;
  user::select_row(Form1.List1, row);
}

// A tool as a new process has it, on empty drives.
struct tool_test : testing::Test {
  tool_test() {
    root = new_folder();
    empty_drives();
    begin();
  }
  ~tool_test() override {
    files::set_drives({});
    std::error_code left;
    fs::remove_all(root, left);
  }
};

}  // namespace ostrane
