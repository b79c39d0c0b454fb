#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "archive_bytes.h"
#include "command/run_command.h"
#include "disk.h"

namespace ostrane {

// The program in a temporary folder, which is the current folder.
struct command_test : testing::Test {
  struct result {
    int status;
    std::string output, errors;
  };

  command_test() { fs::current_path(folder); }
  ~command_test() override {
    fs::current_path(folder.parent_path());
    fs::remove_all(folder);
  }

  // The arguments have no blanks in them. Paths of messages get slashes, which Windows has not.
  static texts arguments_of(const std::string& command_line) {
    std::istringstream words(command_line);
    return {std::istream_iterator<std::string>(words), {}};
  }
  static result run(const std::string& command_line) {
    return run_arguments(arguments_of(command_line));
  }
  static result run_arguments(const texts& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int status = command::run_command(arguments);
    std::string output = testing::internal::GetCapturedStdout();
    std::string errors = testing::internal::GetCapturedStderr();
    std::replace(errors.begin(), errors.end(), '\\', '/');
    return {status, std::move(output), std::move(errors)};
  }

  const fs::path folder = make_temporary_folder();
};

}  // namespace ostrane
