#include <set>

#include "child_process.h"
#include "tool_fixture.h"

// Builds that are killed, that run at the same time, and that other programs disturb.
using namespace ostrane;

enum { reported_success = 10, reported_other_copy = 11 };  // exit status of a copy

// Copies of the tool build in one folder, each in a separate process.
struct builds_test : tool_test {
  const file_map sources = {{"a.txt", some_bytes(150000)}, {"b.txt", ""}, {"c.txt", "c"}};
  const std::string archive =
      archive_bytes({{"A.TXT", sources.at("a.txt")}, {"B.TXT", ""}, {"C.TXT", "c"}});
  const char* const asked = std::getenv("OSTRANE_PAIRS");
  const int pairs = asked == nullptr ? 15 : std::atoi(asked);

  static pid_t start_copy(const auto&... fault) {
    return start_process([&] {
      const failing_calls calls(fault...);
      build_in();
      const std::string message = new_messages().back();
      const bool other_copy = message.find(": another ") != std::string::npos;
      ASSERT_TRUE(other_copy || message.starts_with("Your new Ostrane.dat")) << message;
      _exit(other_copy ? reported_other_copy : reported_success);
    });
  }
  // Restarts the tool with the files and an old archive in C:\work.
  void restart_beside(const std::string& old_archive) const {
    file_map all = sources;
    all[old_archive] = "the old one";
    restart_with(all);
  }
  // There is one archive, whatever a killed copy left, and the next build succeeds.
  void check(std::initializer_list<int> statuses) {
    const std::set<int> possible = {reported_success, reported_other_copy, -1};
    for (const int status : statuses) EXPECT_TRUE(possible.contains(status)) << status;
    const bool created = std::ranges::count(statuses, reported_success) > 0;
    file_map archives = files_in("C:\\work");
    std::erase_if(archives, [](const auto& file) { return file.first.size() != 11; });
    ASSERT_EQ(archives.size(), 1U);
    const std::string& left = archives.begin()->second;
    EXPECT_TRUE(left == archive || (!created && left == "the old one"));
    restart();
    build_in();
    EXPECT_EQ(new_messages().size(), 1U);
    EXPECT_EQ(names_in("C:\\work"), (texts{"OSTRANE.DAT", "a.txt", "b.txt", "c.txt"}));
    EXPECT_TRUE(read("C:\\work\\OSTRANE.DAT") == archive);
  }
};

TEST_F(builds_test, KilledAtAnyCallLeavesACompleteArchive) {
  int at = 0;
  for (int status = -1; status == -1 && !HasFailure(); ++at) {
    SCOPED_TRACE(at);
    restart_beside("ostrane.dat");
    status = exit_status(start_copy(at));
    check({status});
  }
  EXPECT_GT(at, 30);
}

// In half of the first pairs each copy may be killed at any call, in an eighth the first copy is
// killed at any time, in a quarter the file system has no locks. In the other pairs the first copy
// stops at any call and continues after the second.
TEST_F(builds_test, StartedTogetherLeaveACompleteArchive) {
  std::mt19937 random(std::random_device{}());
  for (int pair = 0; pair < 3 * pairs && !HasFailure(); ++pair) {
    restart_beside(pair % 3 == 0 ? "OSTRANE.DAT" : "Ostrane.dat");
    const bool stops = pair >= 2 * pairs;
    const auto any_call = [&random] { return static_cast<int>(random() % 70); };
    const auto start_one = [&] {
      if (pair % 4 == 1) return start_copy("lock", ENOLCK);  // as on some network file systems
      return start_copy(pair % 2 == 0 && random() % 3 == 0 ? any_call() : INT32_MAX);
    };
    const pid_t first =
        stops ? start_copy(any_call(), call_fault{.kind = call_fault::stops}) : start_one();
    siginfo_t event = {};
    if (stops) waitid(P_PID, static_cast<id_t>(first), &event, WSTOPPED | WEXITED | WNOWAIT);
    usleep(static_cast<useconds_t>(random() % 3000));
    if (pair % 8 == 3) kill(first, SIGKILL);
    const int second_status = exit_status(start_one());
    kill(first, SIGCONT);
    check({exit_status(first), second_status});
  }
}

// If another program moves or replaces the temporary file, the old archive stays and the failure is
// reported.
TEST_F(builds_test, LosingTheTemporaryFileKeepsTheOldArchive) {
  const fs::path work = disk_path("C:\\work");
  const fs::path away = disk_path("C:\\away");
  // All but the first leave a file with the name of the temporary one.
  const std::function<void(const fs::path&)> faults[] = {
      [&](const fs::path& file) { fs::rename(file, away); },
      [&](const fs::path&) { fs::rename(work, away); },
      [&](const fs::path& file) { fs::rename(file, away), std::ofstream{file}; },
  };
  for (const auto& inject : faults) {
    fs::remove(away);
    restart_beside("ostrane.dat");
    fs::path temporary;
    failing_calls watched;
    watched.before("flush_to_disk", [&] {
      temporary = work / names_in("C:\\work").front();
      inject(temporary);
    });
    build_in();
    EXPECT_EQ(new_messages(),
              texts{"C:\\work\\OSTRANE.DAT cannot be written: another program has moved the new "
                    "file. No new archive was made."});
    if (fs::is_directory(away)) fs::rename(away, work);
    EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
    EXPECT_EQ(fs::exists(temporary), &inject != faults) << &inject - faults;
  }
  check({});
}

// The new archive is flushed before it replaces the old one, and the folder after.
TEST_F(builds_test, FlushesTheArchiveAndThenTheFolder) {
  restart_beside("OSTRANE.DAT");
  failing_calls none;
  build_in();
  std::erase_if(none.calls, [](const std::string& call) {
    return call != "replace" && !call.starts_with("flush_");
  });
  EXPECT_EQ(none.calls, (texts{"flush_to_disk", "replace", "flush_folder"}));
}
