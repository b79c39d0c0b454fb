#include <chrono>
#include <csignal>
#include <random>

#include "child_process.h"
#include "failing_calls.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using files = std::map<std::string, std::string>;

class sudden_death_test : public tool_test {
 protected:
  const files sources = {{"a.txt", some_bytes(150000)}, {"b.txt", ""}, {"c.txt", "c"}};

  // The folder with an old archive and without a new one.
  void begin_anew() {
    std::filesystem::remove_all(place("C:\\work"));
    for (const auto& [name, bytes] : sources) write("C:\\work\\" + name, bytes);
    write("C:\\work\\ostrane.dat", "the old one");
    begin();
  }
  // What is there is the old archive or the new one, and the next build leaves nothing else.
  void check() {
    files after = files_in("C:\\work");
    for (const auto& [name, bytes] : sources) ASSERT_TRUE(after[name] == bytes) << name;
    ASSERT_EQ(after.count("ostrane.dat") + after.count("OSTRANE.DAT"), 1U);
    ASSERT_TRUE(after["ostrane.dat"] == "the old one" || after["ostrane.dat"] == archive_ ||
                after["OSTRANE.DAT"] == archive_);
    begin();
    build_in();
    files expected = sources;
    expected["OSTRANE.DAT"] = archive_;
    ASSERT_TRUE(files_in("C:\\work") == expected);
  }

 private:
  const std::string archive_ =
      archive_bytes({{"A.TXT", sources.at("a.txt")}, {"B.TXT", ""}, {"C.TXT", "c"}});
};

TEST_F(sudden_death_test, ABuildKilledAtAnyCallLeavesAWholeArchive) {
  bool killed = true;
  int at = 0;
  for (; killed; ++at) {
    SCOPED_TRACE(at);
    begin_anew();
    killed = end_of(begin_process([at] {
               const failing_calls death(at);
               build_in();
             })) < 0;
    ASSERT_NO_FATAL_FAILURE(check());
  }
  EXPECT_GT(at, 30);
}

TEST_F(sudden_death_test, ABuildKilledAtAnyMomentLeavesAWholeArchive) {
  using clock = std::chrono::steady_clock;
  std::mt19937 random(std::random_device{}());
  const auto begun = clock::now();
  begin_anew();
  ASSERT_EQ(end_of(begin_process([] { build_in(); })), 0);
  const std::chrono::duration<double, std::micro> whole = clock::now() - begun;
  int killed = 0;
  for (int time = 0; time < 200; ++time) {
    begin_anew();
    const auto pause = static_cast<useconds_t>(random() % static_cast<unsigned>(whole.count()));
    SCOPED_TRACE(pause);
    const pid_t child = begin_process([] { build_in(); });
    usleep(pause);
    kill(child, SIGKILL);
    killed += end_of(child) < 0 ? 1 : 0;
    ASSERT_NO_FATAL_FAILURE(check());
  }
  RecordProperty("killed", killed);
  EXPECT_GT(killed, 20);
}

// A new archive is on the disk before it takes the old one's place, and its name is there behind.
TEST_F(sudden_death_test, ABuildFlushesBothTheArchiveAndItsFolder) {
  begin_anew();
  const failing_calls none(1000000);
  build_in();
  ASSERT_GT(none.made.size(), 5U);
  EXPECT_EQ(std::vector<std::string>(none.made.end() - 5, none.made.end()),
            (std::vector<std::string>{"flush_to_disk", "close_written", "replace", "replace",
                                      "flush_folder"}));
}

}  // namespace
}  // namespace ostrane
