#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace files {

struct drive {
  char letter;                   // upper case
  std::string label;             // in brackets after the letter in drive_text
  std::filesystem::path folder;  // system path of its root
};

// The drives, sorted by letter.
const std::vector<drive>& drives();

// Adds new drives. Known drives keep their letters and are never removed, so that the paths on
// screen stay valid.
void refresh_drives();

// Replaces the system's drives, and the current folder of the process by the tool path `current`.
// An empty list restores the system's.
void override_system(std::vector<drive> replacement, std::string current = {});

// The `current` of override_system, or "".
const std::string& current_folder_override();

// `letter` is in upper case. Returns null if the drive does not exist.
const drive* find_drive(char letter);

// The text of a drive list's row: "c: [home]".
std::string drive_text(const drive& shown);

// The system's own drives; one file per system.
std::vector<drive> system_drives();

}  // namespace files
