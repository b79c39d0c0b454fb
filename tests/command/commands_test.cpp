#include <cerrno>
#include <optional>

#include "command_fixture.h"
#include "failing_calls.h"

namespace ostrane {
namespace {

const std::vector<archive_entry> entries = {
    {"A.TXT", "text \xE4"}, {"MY\0FILE.TXT", "m"}, {"Z\xC4.DAT", std::string(9000, 'z')}};

struct commands_test : command_test {
  commands_test() { write("a.dat", archive_bytes(named())); }

  // A blank in a name is stored as NUL.
  static std::vector<archive_entry> named() {
    std::vector<archive_entry> all = entries;
    all[1].name = std::string("MY\0FILE.TXT", 11);
    return all;
  }
};

TEST_F(commands_test, EachTellsItsStatusAndWhatIsWrong) {
  write("bad.dat", archive_bytes({{"A", "1"}, {"A", "2"}, {"..", "3"}}) + "rest");
  write("same.txt", "A.TXT\r\nMYFILE.TXT\r\nZ\xC4.DAT\r\n\r\n");
  write("other.txt", "A.TXT\nB.TXT\nMYFILE.TXT\n\n");
  write(u8"\u00E4\u20AC.txt", "new");
  struct sample {
    texts arguments;
    int status;
    std::string output;
    std::string errors;
  };
  const std::vector<sample> samples = {
      {{"list", "a.dat"}, 0, "A.TXT\nMY FILE.TXT\nZ\xC3\x84.DAT\n", ""},
      {{"list", "none"}, 2, "", "ostrane-dat: none: cannot be opened: it is not there.\n"},
      {{"list", "a.dat", "--nothing"},
       2,
       "",
       "ostrane-dat: The following argument was not expected: "
       "--nothing (--help tells more)\n"},
      {{"extract", "a.dat", "B*"}, 2, "", "ostrane-dat: B*: no entry has this name.\n"},
      {{"extract", "a.dat", "-d", "none/in"},
       2,
       "",
       "ostrane-dat: none/in: cannot be opened: it is not there.\n"},
      {{"extract", "bad.dat", ".."},
       1,
       "",
       "ostrane-dat: ..: not extracted: its name means a folder\n"},
      {{"compare", "a.dat", "same.txt", "-o", "r"}, 0, "", ""},
      {{"compare", "a.dat", "other.txt", "-o", "r"}, 1, "", ""},
      {{"check", "a.dat"}, 0, "", ""},
      {{"check", "bad.dat", "a.dat"},
       1,
       "bad.dat: 4 bytes lie after the end record's offset\n"
       "bad.dat: A: entry 1 has its name too\n"
       "bad.dat: ..: cannot become a file: its name means a folder\n",
       ""},
      {{"add", "a.dat", "nul.txt"},
       2,
       "",
       "ostrane-dat: nul.txt: cannot become an entry: its name means a device.\n"},
      {{"add", "a.dat", "a.dat"}, 2, "", "ostrane-dat: a.dat: is the archive itself.\n"},
      {{"add", "a.dat", "\xC3\xA4\xE2\x82\xAC.txt"}, 0, "", ""},
      {{"remove", "a.dat", "*.txt"}, 0, "", ""},
      {{"list", "a.dat"}, 0, "Z\xC3\x84.DAT\n", ""},
  };
  for (const sample& tried : samples) {
    const outcome seen = run(tried.arguments);
    const std::string what = testing::PrintToString(tried.arguments);
    EXPECT_EQ(seen.status, tried.status) << what;
    EXPECT_EQ(seen.output, tried.output) << what;
    EXPECT_EQ(seen.errors, tried.errors) << what;
  }
}

TEST_F(commands_test, ExtractedFilesAreReplacedWholeAndBuildTheSameArchive) {
  write("out/A.TXT", std::string(100, 'o'));
  EXPECT_EQ(run({"extract", "a.dat", "-d", "out"}).status, 0);
  EXPECT_EQ(read("out/A.TXT"), entries[0].bytes);
  EXPECT_EQ(run({"build", "out", "-o", "b.dat"}).status, 0);
  EXPECT_EQ(read("b.dat"), read("a.dat"));
  write("self/SELF.DAT", archive_bytes({{"SELF.DAT", "1"}}));
  const std::string self = read("self/SELF.DAT");
  EXPECT_EQ(run({"extract", "self/SELF.DAT", "-d", "self"}).status, 1);
  EXPECT_EQ(read("self/SELF.DAT"), self);
  EXPECT_EQ(run({"build", "out"}).status, 0);
  EXPECT_EQ(read("out/OSTRANE.DAT"), read("a.dat"));
}

TEST_F(commands_test, AnAddedFileTakesItsPlaceAndAllOtherBytesStay) {
  write("b.txt", "new");
  write("sub/a.txt", "newer");
  std::vector<archive_entry> wanted = named();
  wanted[0].bytes = "newer";
  wanted.insert(wanted.begin() + 1, {"B.TXT", "new"});
  EXPECT_EQ(run({"add", "a.dat", "b.txt", "sub/a.txt"}).status, 0);
  EXPECT_EQ(read("a.dat"), archive_bytes(wanted));
}

// Each call fails in turn: the archive is the old or the new one, and nothing lies beside it.
TEST_F(commands_test, AFailingDiskLeavesTheOldArchiveOrTheNewOne) {
  write("b.txt", "new");
  const std::string old = read("a.dat");
  int changed = 0;
  int calls = 0;
  for (bool happened = true; happened; ++calls) {
    write("a.dat", old);
    std::optional<failing_calls> fault;
    fault.emplace(calls, call_fault{.kind = call_fault::fails, .reason = ENOSPC});
    const int status = run({"remove", "a.dat", "A.TXT"}).status;
    happened = fault->happened();
    fault.reset();
    fs::remove(".A.DAT.lock");  // it stays where a question about it has failed
    const bool is_new = read("a.dat") != old;
    ASSERT_TRUE(is_new || status == 2) << calls;
    ASSERT_EQ(run({"check", "a.dat"}).status, 0) << calls;
    ASSERT_EQ(files_in(".").size(), 2U) << calls;
    changed += is_new ? 1 : 0;
  }
  EXPECT_GT(changed, 1);
  EXPECT_GT(calls, 25);
}

}  // namespace
}  // namespace ostrane
