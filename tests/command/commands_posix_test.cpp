#include <sys/stat.h>

#include <csignal>
#include <cstdio>
#include <future>

#include "child_process.h"
#include "command/commands.h"
#include "command/interruption.h"
#include "pictures/icon_exporter.h"
#include "transcript.h"

using namespace ostrane;

struct commands_posix_test : transcript_test {
  commands_posix_test() {
    verbs["fifo"] = quiet([](const texts& w) { EXPECT_EQ(mkfifo(w[0].c_str(), 0600), 0); });
    verbs["symlink"] = quiet([](const texts& w) { fs::create_symlink(w[0], w[1]); });
    verbs["hold"] = quiet([](const texts& w) {
      EXPECT_EQ(files::system_calls.lock(files::system_calls.open_to_read(w[0])), 0);
    });
    verbs["read"] = [](const texts& w) {  // a pipe, while a command writes to it
      auto read = std::async(std::launch::async, [&w] { return bytes_of(w[0]); });
      const result seen = run_arguments({w.begin() + 1, w.end()});
      EXPECT_EQ(seen.status, 0) << seen.errors;
      return read.get();
    };
    verbs["chmod"] = quiet(
        [](const texts& w) { fs::permissions(w[1], fs::perms(std::stoul(w[0], nullptr, 8))); });
    verbs["mode"] = [](const texts& w) {
      std::ostringstream octal;
      octal << std::oct << static_cast<int>(fs::status(w[0]).permissions()) << '\n';
      return octal.str();
    };
    verbs["user"] = quiet([](const texts& w) {  // root may write to all files
      const auto user = static_cast<uid_t>(std::stoul(w[0]));
      if (getuid() == 0 && seteuid(user) != 0) _exit(HasFailure() ? 1 : cannot_run);
    });
    verbs["stdin"] =
        quiet([](const texts& w) { EXPECT_NE(std::freopen(w[0].c_str(), "r", stdin), nullptr); });
  }
};

// In a process of its own, whose standard input it replaces.
TEST_F(commands_posix_test, PrintsItsTranscripts) {
  run_in_process([&] {
    alarm(60);  // a pipe can wait for its other end
    replay("posix.txt");
  });
  if (make_icon_exporter() == nullptr) return;
  run_in_process([&] { replay("posix_pictures.txt"); });
}

// Each tries again until the other is done.
TEST_F(commands_posix_test, ChangesAtOnceLoseNothing) {
  write_bytes("a.dat", archive_bytes({}));
  std::vector<std::future<int>> adds;
  for (int i = 0; i < 4; ++i) {
    const std::string name = "F" + std::to_string(i);
    write_bytes(name, name);
    adds.push_back(std::async(std::launch::async, [name] {
      return command::add({.archive = "a.dat", .files = {name}});
    }));
  }
  for (auto& add : adds) EXPECT_EQ(add.get(), 0);
  EXPECT_EQ(run("list a.dat").output, "F0\nF1\nF2\nF3\n");
}

// The signal is raised first, so each job ends at its first check.
TEST_F(commands_posix_test, ASignalEndsAJobAndLeavesNoFile) {
  write_bytes("a.dat", archive_bytes({{"A.TXT", std::string(9000, 'a')}}));
  write_bytes("b.txt", "b");
  const auto before = files_at(".");
  run_in_process([&] {
    command::catch_signals();
    std::raise(SIGTERM);
    for (const char* job : {"add a.dat nul", "build . -o c.dat", "extract a.dat",
                            "extract a.dat * -d out", "list a.dat", "remove a.dat A.TXT"}) {
      const failing_calls watched;
      EXPECT_THROW(command::run_command(arguments_of(job)), command::interruption) << job;
      EXPECT_EQ(files_at("."), before) << job;
      const auto made = std::count(watched.calls.begin(), watched.calls.end(), "open_lock");
      EXPECT_TRUE(made == 0 && !fs::exists("out")) << job;
    }
  });
}
