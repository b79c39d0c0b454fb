#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"
#include "sample_files.h"
#include "state/tool_state.h"

// The tool on drives in a temporary folder, and what a user does in several steps.
namespace ostrane {

namespace user = forms_layer::user;
namespace fs = std::filesystem;

using entry = archive_entry;
using texts = std::vector<std::string>;
using file_map = std::map<std::string, std::string>;  // bytes by name

extern fs::path root;  // the folder of the drives

// In memory if the system has a folder there, as the tool waits for disks.
fs::path make_temporary_folder();

// C: then holds an empty folder "program", D: nothing.
void reset_drives();

// Restarts the tool with the current folder `current`. E: is a drive that does not answer.
void restart(const std::string& current = "C:\\");

// The system's path for a path of the tool.
fs::path disk_path(const std::string& path);
void write(const std::string& path, const std::string& bytes);
std::string bytes_of(const fs::path& file);
std::string read(const std::string& path);
void make_folder(const std::string& path);
// The sorted names in a folder, hidden ones too.
texts names_in(const std::string& folder);
// The files in a folder by their UTF-8 names, hidden ones too.
file_map files_in(const std::string& folder);

// Commands, through the dialogs.
void open_archive(const std::string& folder = "C:\\");
void open_bytes(const std::string& archive);
void open_extract_dialog(const std::string& folder);
void extract_into(const std::string& folder);
void open_build_dialog(const std::string& folder = "C:\\work");
void build_in(const std::string& folder = "C:\\work");
void choose_shiplist(const std::string& folder, const std::string& name);
void compare_with(const std::string& folder, const std::string& name);

// The messages since the last call.
texts new_messages();

}  // namespace ostrane
