#pragma once

#include <filesystem>
#include <string>

// The tool at work on a folder, without a screen unless one is attached.
namespace ostrane::bench {

// As a new process has it; the folder is drive C:.
void begin_tool_on(const std::filesystem::path& folder);

// Through Form2, as a user does it.
void open_archive(const std::string& folder);
// Into a folder of the tool, through Form4.
void extract_into(const std::string& folder);
// From a folder of the tool, through Form5.
void build_from(const std::string& folder);
// With a file in a folder of the tool, through Form6.
void compare_with(const std::string& folder, const std::string& file_name);
// Room for icons, and as many of them in a series as told. Pixels.
void widen_window(int width, int height, int max_icons);

// Throws if the tool has told anything but that its jobs are done.
void expect_no_complaint();

}  // namespace ostrane::bench
