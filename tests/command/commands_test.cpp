#include <cerrno>
#include <optional>

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

TEST_F(commands_test, ReplacesExtractedFilesAndBuildsTheSameArchive) {
  write_bytes("out/A.TXT", std::string(100, 'o'));
  write_bytes("out/.A.TXT.000000000000000a.new", "left by a killed run");
  EXPECT_EQ(run("extract a.dat -d out").status, 0);
  EXPECT_EQ(bytes_of("out/A.TXT"), entries[0].bytes);
  EXPECT_EQ(files_at("out").size(), entries.size());
  EXPECT_EQ(run("build out -o b.dat").status, 0);
  EXPECT_EQ(bytes_of("b.dat"), bytes_of("a.dat"));
  write_bytes("self/SELF.DAT", archive_bytes({{"SELF.DAT", "1"}}));
  const std::string self = bytes_of("self/SELF.DAT");
  EXPECT_EQ(run("extract self/SELF.DAT -d self").status, 2);
  EXPECT_EQ(bytes_of("self/SELF.DAT"), self);
  for (const char* old_name : {"out/Ostrane.dat", "out/OSTRANE.DAT"}) {
    write_bytes(old_name, "old");
    EXPECT_EQ(run("build out").status, 0);
    EXPECT_EQ(bytes_of("out/OSTRANE.DAT"), bytes_of("a.dat"));
  }
  for (int run_number = 1; run_number <= 2; ++run_number) {
    EXPECT_EQ(run("build out -o out/New.dat").status, 0);
    EXPECT_EQ(bytes_of("out/New.dat"), bytes_of("a.dat"));
  }
}

// Also if the entries are not in order. Two of the files become the same entry.
TEST_F(commands_test, AddsManyFilesLikeOneAfterTheOther) {
  const std::string unsorted =
      archive_bytes({{"M", ""}, {"C", "1"}, {"C", "2"}, {"Z", ""}, {"k", ""}});
  write_bytes("all.dat", unsorted);
  write_bytes("each.dat", unsorted);
  std::string all = "add --force all.dat";
  int folder_number = 0;
  for (const char name : std::string("xaNkzBLcydM0A")) {
    const std::string file = std::to_string(folder_number++) + "/" + name;
    write_bytes(file, file);
    EXPECT_EQ(run("add each.dat " + file).status, 0);
    all += " " + file;
  }
  EXPECT_EQ(run(all).status, 1);
  EXPECT_EQ(bytes_of("all.dat"), bytes_of("each.dat"));
}

// The new archive is in place if the last listing of the folder fails.
TEST_F(commands_test, ReportsThatSkippedFilesCannotBeListed) {
  write_bytes("in/A.TXT", entries[0].bytes);
  int last_list = INT32_MAX;
  for (const bool fails : {false, true}) {
    const failing_calls watched(last_list, {.reason = EIO});
    const result seen = run("build in");
    EXPECT_EQ(seen.status, fails ? 1 : 0);
    EXPECT_TRUE(seen.errors.starts_with(fails ? "ostrane-dat: in: cannot be read: " : ""));
    EXPECT_EQ(seen.errors.find("The archive was made, but") != std::string::npos, fails);
    EXPECT_EQ(bytes_of("in/OSTRANE.DAT"), archive_bytes({entries[0]}));
    const auto last = std::find(watched.calls.rbegin(), watched.calls.rend(), "list");
    last_list = static_cast<int>(watched.calls.rend() - last) - 1;
    fs::remove("in/OSTRANE.DAT");
  }
}

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
  for (const char* job : {"check a.dat", "diff a.dat b.dat", "pack a.dat A.SHP B.TXT"}) {
    write_bytes("a.dat", bytes_of("b.dat"));
    const result seen = run_beside_a_writer(job);
    EXPECT_EQ(seen.status, 2) << job;
    EXPECT_EQ(seen.output, "") << job;
    EXPECT_EQ(seen.errors.find("not packed"), std::string::npos) << job;
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

// Each call fails in turn: the archive is the old or the new one, and no other file remains.
TEST_F(commands_test, AFailingDiskLeavesTheOldOrTheNewArchive) {
  const std::vector<archive_entry> changed = {entries[1], entries[2]};
  int changes = 0;
  int calls = 0;
  for (bool happened = true; happened; ++calls) {
    write_bytes("a.dat", archive_bytes(entries));
    std::optional<failing_calls> fault;
    fault.emplace(calls, call_fault{.kind = call_fault::fails, .reason = ENOSPC});
    const int status = run("remove a.dat A.TXT").status;
    happened = fault->happened();
    fault.reset();
    fs::remove(".A.DAT.lock");  // remains if its identity cannot be queried
    const bool is_new = bytes_of("a.dat") != archive_bytes(entries);
    ASSERT_EQ(status, is_new ? 0 : 2) << calls;
    ASSERT_EQ(bytes_of("a.dat"), archive_bytes(is_new ? changed : entries)) << calls;
    ASSERT_EQ(files_at(".").size(), 1U) << calls;
    changes += is_new ? 1 : 0;
  }
  EXPECT_GT(changes, 1);
  EXPECT_GT(calls, 25);
}

}  // namespace ostrane
