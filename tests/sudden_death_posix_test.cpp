#include "child_process.h"
#include "failing_calls.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

class sudden_death_test : public tool_test {
 protected:
  const file_map sources = {{"a.txt", some_bytes(150000)}, {"b.txt", ""}, {"c.txt", "c"}};
  const std::string archive =
      archive_bytes({{"A.TXT", sources.at("a.txt")}, {"B.TXT", ""}, {"C.TXT", "c"}});

  void begin_beside_old_archive() {
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
};

// A part of the new archive may be left behind too, but not by the next build.
TEST_F(sudden_death_test, ABuildKilledAtAnyCallLeavesAWholeArchive) {
  bool killed = true;
  int at = 0;
  for (; killed; ++at) {
    SCOPED_TRACE(at);
    begin_beside_old_archive();
    killed = end_of(begin_process([at] {
               const failing_calls death(at);
               build_in();
             })) < 0;
    file_map left = files_in("C:\\work");
    left.erase(".OSTRANE.DAT.new");
    ASSERT_TRUE(left == sources_and("ostrane.dat", "the old one") ||
                left == sources_and("ostrane.dat", archive) ||
                left == sources_and("OSTRANE.DAT", archive));
    begin();
    build_in();
    ASSERT_TRUE(files_in("C:\\work") == sources_and("OSTRANE.DAT", archive));
  }
  EXPECT_GT(at, 30);
}

// A new archive is on the disk before it takes the old one's place, and its name is there behind.
TEST_F(sudden_death_test, ABuildFlushesBothTheArchiveAndItsFolder) {
  begin_beside_old_archive();
  const failing_calls none(1000000);
  build_in();
  ASSERT_GT(none.made.size(), 5U);
  EXPECT_EQ(texts(none.made.end() - 5, none.made.end()),
            (texts{"flush_to_disk", "close_written", "replace", "replace", "flush_folder"}));
}

}  // namespace
}  // namespace ostrane
