#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace files {

struct drive {
  char letter;                   // upper case
  std::string label;             // what stands in the brackets behind it
  std::filesystem::path folder;  // what its root is on this system
};

// The drives, by letter. One that was seen once stays, so that letters never move under the user.
const std::vector<drive>& drives();

// Looks for drives that have come.
void find_drives();

// Takes these for all drives and nothing else, and `current` as the current folder of the process;
// an empty list brings the system's own back.
void set_drives(std::vector<drive> given, std::string current = {});

// The current folder that was given with set_drives, or empty.
const std::string& given_current_folder();

// Null if there is none. The letter is in upper case.
const drive* find_drive(char letter);

// As a drive list shows it: "c: [home]".
std::string drive_text(const drive& shown);

// The system's own drives; one file per system.
std::vector<drive> system_drives();

}  // namespace files
