#include <chrono>
#include <csignal>

#include "child_process.h"
#include "failing_calls.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

struct crash_test : tool_test {
  const file_map sources = {{"a.txt", some_bytes(150000)}, {"b.txt", ""}, {"c.txt", "c"}};
  const std::string archive =
      archive_bytes({{"A.TXT", sources.at("a.txt")}, {"B.TXT", ""}, {"C.TXT", "c"}});

  void begin_beside_old_archive() const {
    fs::remove_all(place("C:\\work"));
    for (const auto& [name, bytes] : sources) write("C:\\work\\" + name, bytes);
    write("C:\\work\\ostrane.dat", "the old one");
    begin();
  }
  file_map sources_and(const std::string& name, const std::string& bytes) const {
    file_map both = sources;
    both[name] = bytes;
    return both;
  }
  // Tells whether the build was killed. A part of the new archive may be left behind too, but not
  // by the next build.
  bool dies_and_leaves_a_whole_archive(const std::function<void()>& build,
                                       useconds_t killed_after) {
    begin_beside_old_archive();
    const pid_t child = begin_process(build);
    if (killed_after > 0) usleep(killed_after);
    if (killed_after > 0) kill(child, SIGKILL);
    const bool killed = end_of(child) < 0;
    file_map left = files_in("C:\\work");
    std::erase_if(left, [](const auto& file) { return file.first.starts_with(".OSTRANE.DAT."); });
    EXPECT_TRUE(left == sources_and("ostrane.dat", "the old one") ||
                left == sources_and("ostrane.dat", archive) ||
                left == sources_and("OSTRANE.DAT", archive));
    begin();
    build_in();
    EXPECT_TRUE(files_in("C:\\work") == sources_and("OSTRANE.DAT", archive));
    return killed;
  }
};

TEST_F(crash_test, ABuildKilledAtAnyCallLeavesAWholeArchive) {
  int at = 0;
  const auto build = [&at] {
    const failing_calls death(at);
    build_in();
  };
  while (dies_and_leaves_a_whole_archive(build, 0) && !HasFailure()) ++at;
  EXPECT_GT(at, 30);
}

TEST_F(crash_test, ABuildKilledAtAnyMomentLeavesAWholeArchive) {
  const auto build = [] { build_in(); };
  begin_beside_old_archive();
  const auto begun = std::chrono::steady_clock::now();
  ASSERT_EQ(end_of(begin_process(build)), 0);
  const std::chrono::duration<double, std::micro> whole = std::chrono::steady_clock::now() - begun;
  std::mt19937 random(std::random_device{}());
  int killed = 0;
  for (int time = 0; time < 2000 && killed < 60 && !HasFailure(); ++time) {
    const auto moment =
        static_cast<useconds_t>(1 + random() % static_cast<unsigned>(whole.count()));
    SCOPED_TRACE(moment);
    killed += dies_and_leaves_a_whole_archive(build, moment) ? 1 : 0;
  }
  RecordProperty("killed", killed);
  EXPECT_EQ(killed, 60);
}

// A new archive is on the disk before it takes the old one's place, and its name is there behind.
TEST_F(crash_test, ABuildFlushesBothTheArchiveAndItsFolder) {
  begin_beside_old_archive();
  const failing_calls none(1000000, {});
  build_in();
  texts flushes = none.made;
  std::erase_if(flushes, [](const std::string& call) {
    return call != "replace" && !call.starts_with("flush_");
  });
  EXPECT_EQ(flushes, (texts{"flush_to_disk", "replace", "replace", "flush_folder"}));
}

}  // namespace
}  // namespace ostrane
