#include "tool_on_drives.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

#include "files/drives.h"
#include "handlers/start_up.h"
#include "write_file.h"

namespace ostrane {
namespace {

std::size_t taken = 0;

std::string name_of(const fs::path& found) {
  const std::u8string utf8 = found.filename().u8string();
  return {utf8.begin(), utf8.end()};
}

}  // namespace

fs::path root;

fs::path make_temporary_folder() {
  const fs::path memory = "/dev/shm";
  const fs::path base = fs::is_directory(memory) ? memory : fs::temp_directory_path();
  std::random_device any;
  fs::path made;
  do {
    made = base / ("tool-test-" + std::to_string(any()));
  } while (!fs::create_directory(made));
  return made;
}

void reset_drives() {
  for (const char* drive : {"c", "d"}) fs::remove_all(root / drive);
  fs::create_directories(root / "c" / "program");
  fs::create_directories(root / "d");
}

void restart(const std::string& current) {
  files::set_drives({{'C', "test", root / "c"}, {'D', "other", root / "d"}, {'E', "", root / "e"}},
                    current);
  start_tool(root / "c" / "program");
  taken = 0;
}

fs::path disk_path(const std::string& path) {
  std::string rest = path.substr(3);
  std::replace(rest.begin(), rest.end(), '\\', '/');
  return root / std::string(1, static_cast<char>(path[0] | 0x20)) /
         std::u8string(rest.begin(), rest.end());
}

void write(const std::string& path, const std::string& bytes) {
  fs::create_directories(disk_path(path).parent_path());
  write_file(disk_path(path), bytes);
}

std::string bytes_of(const fs::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

std::string read(const std::string& path) { return bytes_of(disk_path(path)); }

void make_folder(const std::string& path) { fs::create_directories(disk_path(path)); }

texts names_in(const std::string& folder) {
  texts names;
  for (const auto& found : fs::directory_iterator(disk_path(folder)))
    names.push_back(name_of(found));
  std::sort(names.begin(), names.end());
  return names;
}

file_map files_in(const std::string& folder) {
  file_map all;
  for (const auto& found : fs::directory_iterator(disk_path(folder))) {
    if (found.is_regular_file()) all[name_of(found)] = bytes_of(found);
  }
  return all;
}

void open_archive(const std::string& folder) {
  user::click(Form1.mnu_open);
  Form2.Dir1.Path = folder;
  user::click(Form2.Command1);
}

void open_bytes(const std::string& archive) {
  write("C:\\ostrane.dat", archive);
  open_archive();
}

void open_extract_dialog(const std::string& folder) {
  user::click(Form1.mnu_ext);
  user::type(Form4.Text1, folder);
}

void extract_into(const std::string& folder) {
  open_extract_dialog(folder);
  user::click(Form4.Command2);
}

void open_build_dialog(const std::string& folder) {
  user::click(Form1.mnu_make);
  Form5.Dir1.Path = folder;
  Form5.File1.Refresh();
  user::type(Form5.Text1, folder);
}

void build_in(const std::string& folder) {
  open_build_dialog(folder);
  user::click(Form5.Command1);
}

void choose_shiplist(const std::string& folder, const std::string& name) {
  user::click(Form1.mnu_read_filelist);
  Form6.Dir1.Path = folder;
  Form6.Text1.Text = name;
}

void compare_with(const std::string& folder, const std::string& name) {
  choose_shiplist(folder, name);
  user::click(Form6.Command1);
}

texts new_messages() {
  const texts& all = forms_layer::messages_shown();
  texts fresh(all.begin() + static_cast<std::ptrdiff_t>(taken), all.end());
  taken = all.size();
  return fresh;
}

}  // namespace ostrane
