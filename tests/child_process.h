#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ostrane {

constexpr int cannot_run = 77;  // exit status of a process that cannot set up its test

// Forks a process that runs `job` and exits with 0, or with 1 if an expectation failed.
pid_t start_process(const auto& job) {
  const pid_t child = fork();
  if (child != 0) return child;
  try {
    job();
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
  _exit(testing::Test::HasFailure() ? 1 : 0);
}

// The exit status, or -1 if a signal ended the process.
inline int exit_status(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void run_in_process(const auto& job) {
  const int status = exit_status(start_process(job));
  if (status == cannot_run) GTEST_SKIP() << "this user may not do that";
  EXPECT_EQ(status, 0);
}

// Becomes a user without root's permissions.
inline void drop_root() {
  if (geteuid() != 0) return;
  if (setgroups(0, nullptr) != 0 || setgid(65534) != 0 || setuid(65534) != 0) _exit(cannot_run);
}

}  // namespace ostrane
