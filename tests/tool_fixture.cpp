#include "tool_fixture.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

#include "archive/format.h"
#include "platform/case_blind.h"
#include "platform/little_endian.h"

namespace ostrane {

namespace fs = std::filesystem;

std::string index_bytes(std::int32_t count,
                        const std::vector<std::pair<std::int32_t, std::string>>& records) {
  std::array<std::byte, record_size> bytes;
  std::string text;
  const auto append = [&](std::size_t size) {
    text.append(reinterpret_cast<const char*>(bytes.data()), size);
  };
  platform::put_int32(bytes, 0, count);
  append(count_size);
  for (const auto& [offset, name] : records) {
    dat_record record{.offset = offset, .name = {}};
    std::copy_n(name.begin(), std::min(name.size(), name_size), record.name.begin());
    encode_record(record, bytes);
    append(record_size);
  }
  return text;
}

std::string archive_bytes(const std::vector<entry>& entries) {
  const auto count = static_cast<std::int32_t>(entries.size()) + 1;
  std::int32_t offset = count_size + record_size * count;
  std::vector<std::pair<std::int32_t, std::string>> records;
  std::string data;
  for (const entry& e : entries) {
    records.emplace_back(offset, e.name);
    offset += static_cast<std::int32_t>(e.bytes.size());
    data += e.bytes;
  }
  records.emplace_back(offset, "");
  return index_bytes(count, records) + data;
}

std::string some_bytes(std::size_t count, unsigned seed) {
  std::string bytes(count, ' ');
  unsigned state = seed * 2654435761U + 1;
  for (char& c : bytes) {
    state = state * 1664525U + 1013904223U;
    c = static_cast<char>(state >> 24U);
  }
  return bytes;
}

namespace {

fs::path path_of(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
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
  return root / std::string(1, static_cast<char>(path[0] | 0x20)) / path_of(rest);
}

void tool_test::write(const std::string& path, const std::string& bytes) const {
  fs::create_directories(place(path).parent_path());
  std::ofstream(place(path), std::ios::binary) << bytes;
  platform::forget_folders();
}

std::string tool_test::read(const std::string& path) const { return bytes_of(place(path)); }

bool tool_test::exists(const std::string& path) const { return fs::exists(place(path)); }

void tool_test::make_folder(const std::string& path) const { fs::create_directories(place(path)); }

std::vector<std::string> tool_test::names_in(const std::string& folder) const {
  std::vector<std::string> names;
  for (const auto& found : fs::directory_iterator(place(folder))) {
    names.push_back(name_of(found.path()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::map<std::string, std::string> tool_test::files_in(const std::string& folder) const {
  std::map<std::string, std::string> files;
  for (const auto& found : fs::directory_iterator(place(folder))) {
    if (found.is_regular_file()) files[name_of(found.path())] = bytes_of(found.path());
  }
  return files;
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

void tool_test::double_click_row(const std::string& name) {
  click_row(name);
  user::double_click(Form1.List1, row_of(name));
}

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

std::vector<std::string> tool_test::new_messages() {
  const std::vector<std::string>& all = platform::messages_shown();
  std::vector<std::string> fresh(all.begin() + static_cast<std::ptrdiff_t>(told_), all.end());
  told_ = all.size();
  return fresh;
}

}  // namespace ostrane
