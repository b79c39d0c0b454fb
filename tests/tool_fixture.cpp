#include "tool_fixture.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

#include "archive/format.h"
#include "archive_writer.h"
#include "platform/case_blind.h"

namespace ostrane {
namespace {

std::string little_endian(std::int32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift);
  return bytes;
}

std::string name_of(const fs::path& place) {
  const std::u8string utf8 = place.filename().u8string();
  return {utf8.begin(), utf8.end()};
}

std::string bytes_of(const fs::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

}  // namespace

std::string index_bytes(std::int32_t count,
                        const std::vector<std::pair<std::int32_t, std::string>>& records) {
  std::string bytes = little_endian(count);
  for (const auto& [offset, name] : records) {
    bytes += little_endian(offset) + name;
    bytes.resize(bytes.size() + name_size - name.size());
  }
  return bytes;
}

std::string archive_bytes(const std::vector<entry>& entries) {
  return samples::archive_file(entries);
}

std::string some_bytes(std::size_t count, unsigned seed) {
  std::string bytes(count, ' ');
  std::minstd_rand numbers(seed + 1);
  for (char& c : bytes) c = static_cast<char>(numbers() >> 8U);
  return bytes;
}

tool_test::tool_test() {
  std::random_device any;
  do root = fs::temp_directory_path() / ("tool-test-" + std::to_string(any()));
  while (!fs::create_directory(root));
  fs::create_directories(root / "c" / "program");
  fs::create_directories(root / "d");
  begin();
}

tool_test::~tool_test() {
  platform::set_drives({});
  std::error_code left;
  fs::remove_all(root, left);
}

void tool_test::begin(const std::string& current) {
  platform::set_drives(
      {{'C', "test", root / "c"}, {'D', "other", root / "d"}, {'E', "", root / "e"}}, current);
  begin_tool("C:\\program");
  told_ = 0;
}

fs::path tool_test::place(const std::string& path) const {
  std::string rest = path.substr(3);
  std::replace(rest.begin(), rest.end(), '\\', '/');
  return root / std::string(1, static_cast<char>(path[0] | 0x20)) /
         std::u8string(rest.begin(), rest.end());
}

void tool_test::write(const std::string& path, const std::string& bytes) const {
  fs::create_directories(place(path).parent_path());
  std::ofstream(place(path), std::ios::binary) << bytes;
  platform::forget_folders();
}

std::string tool_test::read(const std::string& path) const { return bytes_of(place(path)); }

bool tool_test::exists(const std::string& path) const { return fs::exists(place(path)); }

void tool_test::make_folder(const std::string& path) const { fs::create_directories(place(path)); }

texts tool_test::names_in(const std::string& folder) const {
  texts names;
  for (const auto& found : fs::directory_iterator(place(folder))) names.push_back(name_of(found));
  std::sort(names.begin(), names.end());
  return names;
}

file_map tool_test::files_in(const std::string& folder) const {
  file_map found_there;
  for (const auto& found : fs::directory_iterator(place(folder))) {
    if (found.is_regular_file()) found_there[name_of(found)] = bytes_of(found);
  }
  return found_there;
}

void tool_test::open_archive(const std::string& folder) {
  user::click(Form1.mnu_open);
  Form2.Dir1.Path = folder;
  user::click(Form2.Command1);
}

void tool_test::open_archive(const std::vector<entry>& entries) {
  open_bytes(archive_bytes(entries));
}

void tool_test::open_bytes(const std::string& bytes) {
  write("C:\\ostrane.dat", bytes);
  open_archive();
}

std::int32_t tool_test::row_of(const std::string& name) const {
  for (std::int32_t row = 0; row < Form1.List1.ListCount(); ++row) {
    if (Form1.List1.List(row) == name) return row;
  }
  ADD_FAILURE() << "no row " << name;
  return -1;
}

void tool_test::click_row(const std::string& name) { user::select_row(Form1.List1, row_of(name)); }

void tool_test::extract_into(const std::string& folder) {
  user::click(Form1.mnu_ext);
  user::type(Form4.Text1, folder);
  user::click(Form4.Command2);
}

void tool_test::open_build_dialog(const std::string& folder) {
  user::click(Form1.mnu_make);
  Form5.Dir1.Path = folder;
  Form5.File1.Refresh();
  user::type(Form5.Text1, folder);
}

void tool_test::build_in(const std::string& folder) {
  open_build_dialog(folder);
  user::click(Form5.Command1);
}

void tool_test::choose_shiplist(const std::string& folder, const std::string& name) {
  user::click(Form1.mnu_read_filelist);
  Form6.Dir1.Path = folder;
  Form6.Text1.Text = name;
}

void tool_test::compare_with(const std::string& folder, const std::string& name) {
  choose_shiplist(folder, name);
  user::click(Form6.Command1);
}

texts tool_test::new_messages() {
  const texts& all = platform::messages_shown();
  texts fresh(all.begin() + static_cast<std::ptrdiff_t>(told_), all.end());
  told_ = all.size();
  return fresh;
}

}  // namespace ostrane
