#include <chrono>
#include <csignal>

#include "child_process.h"
#include "failing_calls.h"
#include "tool_fixture.h"

namespace ostrane {

struct crash_test : small_build_test {
  // Returns whether the build was killed. A partial archive under a hidden name may remain until
  // the next build.
  bool is_killed_and_leaves_a_complete_archive(const std::function<void()>& build,
                                               useconds_t killed_after) {
    restart_beside("ostrane.dat");
    const pid_t child = start_process(build);
    if (killed_after > 0) usleep(killed_after);
    if (killed_after > 0) kill(child, SIGKILL);
    const bool killed = exit_status(child) < 0;
    file_map left = files_in("C:\\work");
    std::erase_if(left, [](const auto& file) { return file.first.starts_with(".OSTRANE.DAT."); });
    EXPECT_TRUE(left == sources_and("ostrane.dat", "the old one") ||
                left == sources_and("ostrane.dat", archive) ||
                left == sources_and("OSTRANE.DAT", archive));
    restart();
    build_in();
    EXPECT_TRUE(files_in("C:\\work") == sources_and("OSTRANE.DAT", archive));
    return killed;
  }
};

TEST_F(crash_test, ABuildKilledAtAnyCallLeavesACompleteArchive) {
  int at = 0;
  const auto build = [&at] {
    const failing_calls killing(at);
    build_in();
  };
  while (is_killed_and_leaves_a_complete_archive(build, 0) && !HasFailure()) ++at;
  EXPECT_GT(at, 30);
}

TEST_F(crash_test, ABuildKilledAtAnyTimeLeavesACompleteArchive) {
  const auto build = [] { build_in(); };
  restart_beside("ostrane.dat");
  const auto start = std::chrono::steady_clock::now();
  ASSERT_EQ(exit_status(start_process(build)), 0);
  const std::chrono::duration<double, std::micro> duration =
      std::chrono::steady_clock::now() - start;
  std::mt19937 random(std::random_device{}());
  int killed = 0;
  for (int run = 0; run < 2000 && killed < 60 && !HasFailure(); ++run) {
    const auto delay =
        static_cast<useconds_t>(1 + random() % static_cast<unsigned>(duration.count()));
    SCOPED_TRACE(delay);
    killed += is_killed_and_leaves_a_complete_archive(build, delay) ? 1 : 0;
  }
  RecordProperty("killed", killed);
  EXPECT_EQ(killed, 60);
}

// A new archive is flushed before it replaces the old one, and the folder after.
TEST_F(crash_test, ABuildFlushesTheArchiveThenItsFolder) {
  restart_beside("ostrane.dat");
  const failing_calls none(1000000, {});
  build_in();
  texts flushes = none.calls;
  std::erase_if(flushes, [](const std::string& call) {
    return call != "replace" && !call.starts_with("flush_");
  });
  EXPECT_EQ(flushes, (texts{"flush_to_disk", "replace", "replace", "flush_folder"}));
}

}  // namespace ostrane
