#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ostrane {

constexpr int not_possible = 77;  // what a process ends with that cannot try what it is to try

// Begins a process that does this and ends with 0, or with 1 if a test's expectation failed.
template <typename Job>
pid_t begin_process(const Job& job) {
  const pid_t child = fork();
  if (child != 0) return child;
  try {
    job();
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
  _exit(testing::Test::HasFailure() ? 1 : 0);
}

// What the process ended with, or -1 if it was killed.
inline int end_of(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace ostrane
