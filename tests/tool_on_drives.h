#pragma once

#include "archive_bytes.h"
#include "disk.h"
#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"
#include "handlers/start_up.h"
#include "state/tool_state.h"

// The tool on drives in a temporary folder, and what a user does in several steps.
namespace ostrane {

namespace user = forms_layer::user;

using entry = archive_entry;

inline fs::path root;  // the folder of the drives

// C: then holds an empty folder "program", D: nothing.
inline void reset_drives() {
  for (const char* drive : {"c", "d"}) fs::remove_all(root / drive);
  fs::create_directories(root / "c" / "program");
  fs::create_directories(root / "d");
}

// Restarts the tool with the current folder `current`. E: is a drive that does not answer.
inline void restart(const std::string& current = "C:\\") {
  files::override_system(
      {{'C', "test", root / "c"}, {'D', "other", root / "d"}, {'E', "", root / "e"}}, current);
  start_tool(root / "c" / "program");
}

// The system's path for a path of the tool.
inline fs::path disk_path(const std::string& path) {
  std::string rest = path.substr(3);
  std::replace(rest.begin(), rest.end(), '\\', '/');
  return root / std::string(1, static_cast<char>(path[0] | 0x20)) /
         std::u8string(rest.begin(), rest.end());
}
inline void write(const std::string& path, const std::string& bytes) {
  write_bytes(disk_path(path), bytes);
}
inline std::string read(const std::string& path) { return bytes_of(disk_path(path)); }
inline void make_folder(const std::string& path) { fs::create_directories(disk_path(path)); }
inline file_map files_in(const std::string& folder) { return files_at(disk_path(folder)); }
// The sorted names in a folder, hidden ones too.
inline texts names_in(const std::string& folder) {
  texts all;
  for (const auto& found : fs::directory_iterator(disk_path(folder)))
    all.push_back(utf8_name(found));
  std::sort(all.begin(), all.end());
  return all;
}

const auto nothing = [] {};

// Commands, through the dialogs.
inline auto clicking(auto& control) {
  return [&control] { user::click(control); };
}
inline void open_archive(const std::string& folder = "C:\\") {
  user::click(Form1.mnu_open);
  Form2.Dir1.Path = folder;
  user::click(Form2.Command1);
}
inline void open_bytes(const std::string& archive) {
  write("C:\\ostrane.dat", archive);
  open_archive();
}
inline void open_extract_dialog(const std::string& folder) {
  user::click(Form1.mnu_ext);
  user::type(Form4.Text1, folder);
}
inline void extract_into(const std::string& folder) {
  open_extract_dialog(folder);
  user::click(Form4.Command2);
}
inline void open_build_dialog(const std::string& folder = "C:\\work") {
  user::click(Form1.mnu_make);
  Form5.Dir1.Path = folder;
  Form5.File1.Refresh();
  user::type(Form5.Text1, folder);
}
inline void build_in(const std::string& folder = "C:\\work") {
  open_build_dialog(folder);
  user::click(Form5.Command1);
}
inline void choose_shiplist(const std::string& folder, const std::string& name) {
  user::click(Form1.mnu_read_filelist);
  Form6.Dir1.Path = folder;
  Form6.Text1.Text = name;
}
inline void run_comparison(const std::string& folder, const std::string& name) {
  choose_shiplist(folder, name);
  user::click(Form6.Command1);
}

// The messages since the last call or restart.
inline texts new_messages() {
  const texts fresh = forms_layer::messages_shown();
  forms_layer::clear_messages();
  return fresh;
}

}  // namespace ostrane
