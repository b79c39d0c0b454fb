#pragma once

#include <filesystem>
#include <string>

// Runs jobs of the tool on a folder, through its dialogs. Paths of folders are paths of the tool.
namespace ostrane::bench {

// Starts the tool as in a new process. The folder becomes drive C:.
void start_tool_on(const std::filesystem::path& folder);

void open_archive(const std::string& folder);
void extract_into(const std::string& folder);
void build_from(const std::string& folder);
void run_comparison(const std::string& folder, const std::string& file_name);
// Sizes are in pixels. `max_icons` limits a series.
void resize_window(int width, int height, int max_icons);

// A dialog stays open if its job failed.
bool dialog_is_open();
// Without a screen: throws if the job failed or showed more than its message of success.
void expect_success();

}  // namespace ostrane::bench
