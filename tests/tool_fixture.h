#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "handlers/start_up.h"
#include "platform/drives.h"
#include "platform/message_box.h"
#include "platform/user.h"
#include "sample_files.h"
#include "state/tool_state.h"

namespace ostrane {

namespace user = platform::user;
namespace fs = std::filesystem;

using entry = samples::sample_file;
using texts = std::vector<std::string>;
using file_map = std::map<std::string, std::string>;  // bytes by names

// The bytes of an archive in normal form: the entries in this order, then the end record.
std::string archive_bytes(const std::vector<entry>& entries);

// The bytes of an index alone: a count and records of offset and name.
std::string index_bytes(std::int32_t count,
                        const std::vector<std::pair<std::int32_t, std::string>>& records);

// `count` bytes that differ from their neighbours and from those of another seed.
std::string some_bytes(std::size_t count, unsigned seed = 1);

// A tool as a new process has it, on drives of its own: C: is an empty folder, D: another one, and
// E: a drive that does not answer.
class tool_test : public testing::Test {
 protected:
  tool_test();
  ~tool_test() override;

  // Begins the tool afresh in `current`, a path of the tool.
  void begin(const std::string& current = "C:\\");

  fs::path place(const std::string& path) const;
  void write(const std::string& path, const std::string& bytes) const;
  std::string read(const std::string& path) const;
  bool exists(const std::string& path) const;
  void make_folder(const std::string& path) const;
  // Names in a folder, hidden ones too, ascending.
  texts names_in(const std::string& folder) const;
  // The bytes of the files in a folder by their names on this system, hidden ones too.
  file_map files_in(const std::string& folder) const;

  // Through Form2, as a user does it.
  void open_archive(const std::string& folder = "C:\\");
  void open_archive(const std::vector<entry>& entries);
  void open_bytes(const std::string& bytes);
  void click_row(const std::string& name);
  // Through Form4, Form5 and Form6.
  static void extract_into(const std::string& folder);
  static void open_build_dialog(const std::string& folder = "C:\\work");
  static void build_in(const std::string& folder = "C:\\work");
  static void choose_shiplist(const std::string& folder, const std::string& name);
  static void compare_with(const std::string& folder, const std::string& name);

  // The messages since the last call.
  texts new_messages();

  fs::path root;

 private:
  std::int32_t row_of(const std::string& name) const;
  std::size_t told_ = 0;
};

}  // namespace ostrane
