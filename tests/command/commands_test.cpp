#include "data/icon_packer.h"
#include "transcript.h"

namespace ostrane {

struct commands_test : transcript_test {
  commands_test() { write_bytes("a.dat", archive_bytes(entries)); }

  // A blank in a name is stored as NUL.
  const std::vector<archive_entry> entries = {{"A.TXT", "text \xE4"},
                                              {std::string("MY\0FILE.TXT", 11), "m"},
                                              {"Z\xC4.DAT", std::string(9000, 'z')}};
};

TEST_F(commands_test, PrintsItsTranscript) { replay("commands.txt"); }

TEST_F(commands_test, KeepsWhatAnotherProgramWritesDuringAChange) {
  for (const char* call : {"read_some", "flush_to_disk"}) {
    write_bytes("a.dat", archive_bytes(entries));
    EXPECT_EQ(run_beside_a_writer("remove a.dat A.TXT", call).status, 2) << call;
    EXPECT_TRUE(bytes_of("a.dat").starts_with(archive_bytes(entries) + "x")) << call;
    EXPECT_EQ(files_at(".").size(), 1U);
  }
  write_bytes("a.dat", archive_bytes(entries));
  EXPECT_EQ(run_beside_a_writer("extract a.dat A.TXT -d out", "read_some").status, 2);
  EXPECT_TRUE(files_at("out").empty());
  const std::vector<picture> equal_icons(4, picture(2, 1));
  write_bytes("b.dat", archive_bytes({{"A.SHP", shp_file(equal_icons)}, {"B.TXT", ""}}));
  for (const auto& [job, words] :
       {std::pair("check a.dat", "Start the check again"),
        {"diff a.dat b.dat", "Start the comparison again"},
        {"pack a.dat A.SHP B.TXT", "ostrane-dat: a.dat: another program has changed it"},
        {"export a.dat *", "export"}}) {
    write_bytes("a.dat", bytes_of("b.dat"));
    const result seen = run_beside_a_writer(job);
    EXPECT_EQ(seen.status, 2) << job;
    EXPECT_EQ(seen.output, "") << job;
    EXPECT_NE(seen.errors.find(words), std::string::npos) << seen.errors;
    EXPECT_EQ(seen.errors.find("not packed"), std::string::npos) << seen.errors;
    EXPECT_EQ(files_at(".").size(), 2U) << job;
  }
}

// The entry comes from another program before the second attempt.
TEST_F(commands_test, AddsNothingThatWouldReplaceANewEntry) {
  write_bytes("longer_than_this.txt", "mine");
  const std::string other = archive_bytes({{"LONGER_THAN_T", "other"}});
  failing_calls watched;
  watched.before("flush_to_disk", [&, is_first = true]() mutable {
    if (std::exchange(is_first, false)) write_bytes("a.dat", other);
  });
  EXPECT_EQ(run("add a.dat longer_than_this.txt").status, 2);
  EXPECT_EQ(bytes_of("a.dat"), other);
}

}  // namespace ostrane
