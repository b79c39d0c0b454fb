#include "transcript.h"

using namespace ostrane;

using commands_test = transcript_test;

TEST_F(commands_test, PrintsItsTranscript) { replay("commands.txt"); }

// The entry comes from another program before the second attempt.
TEST_F(commands_test, AddsNothingThatWouldReplaceANewEntry) {
  write_bytes("longer_than_this.txt", "mine");
  write_bytes("a.dat", archive_bytes({}));
  const std::string other = archive_bytes({{"LONGER_THAN_T", "other"}});
  failing_calls watched;
  watched.before("flush_to_disk", [&, is_first = true]() mutable {
    if (std::exchange(is_first, false)) write_bytes("a.dat", other);
  });
  EXPECT_EQ(run("add a.dat longer_than_this.txt").status, 2);
  EXPECT_EQ(bytes_of("a.dat"), other);
}
