#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "command/command_line.h"
#include "data/archive_bytes.h"

namespace ostrane {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;

// The program in a folder of its own, which is the current one.
struct command_test : testing::Test {
  struct outcome {
    int status;
    std::string output;
    std::string errors;
  };

  command_test() {
    folder = fs::temp_directory_path() /
             ("ostrane-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)) +
              std::to_string(std::time(nullptr)));
    fs::remove_all(folder);
    fs::create_directories(folder);
    fs::current_path(folder);
  }
  ~command_test() override {
    fs::current_path(folder.parent_path());
    fs::remove_all(folder);
  }

  static outcome run(const texts& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = command::run(arguments);
    std::string output = testing::internal::GetCapturedStdout();
    return {status, std::move(output), testing::internal::GetCapturedStderr()};
  }
  static void write(const fs::path& path, const std::string& bytes) {
    fs::create_directories(fs::absolute(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
  static std::string read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::map<std::string, std::string> files_in(const fs::path& place) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(place)) {
      if (entry.is_regular_file()) files[entry.path().filename().string()] = read(entry.path());
    }
    return files;
  }

  fs::path folder;
};

}  // namespace ostrane
