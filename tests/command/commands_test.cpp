#include <cerrno>
#include <optional>

#include "command_fixture.h"
#include "version/version.h"

namespace ostrane {

struct commands_test : command_test {
  commands_test() { write_bytes("a.dat", archive_bytes(entries)); }

  // A blank in a name is stored as NUL.
  const std::vector<archive_entry> entries = {{"A.TXT", "text \xE4"},
                                              {std::string("MY\0FILE.TXT", 11), "m"},
                                              {"Z\xC4.DAT", std::string(9000, 'z')}};
};

// The command line, the exit status, and what is printed or the error.
TEST_F(commands_test, EachReportsItsStatusAndErrors) {
  write_bytes("bad.dat", archive_bytes({{"A", "1"}, {"A", "2"}, {"..", "3"}}) + "rest");
  write_bytes("same.txt", "A.TXT\r\nMYFILE.TXT\r\nZ\xC4.DAT\r\n\r\n");
  write_bytes("one.txt", "\xC4\n\n");
  const std::string compared =
      "The following differences was found between your Ostrane.dat and the shiplist\n\n"
      "      Present in    Present in   \nIcon# Ostrane.dat   Shiplist     \n"
      "    0 \u00C3\u00A9/\n    1 \n";
  write_bytes("other.txt", "A.TXT\nB.TXT\nMYFILE.TXT\n\n");
  write_bytes(u8"\u00E4\u20AC.txt", "new");
  write_bytes("empty.dat", archive_bytes({}));
  // Its name looks like UTF-8.
  write_bytes("u.dat", archive_bytes({{"\xC3\xA9/", "1"}}));
  write_bytes("half.dat", archive_bytes({{"A", "1"}, {"..", "1"}}));
  // Both entries exceed the archive.
  write_bytes("names.dat", archive_bytes({{"S", "1"}, {"NO", "2"}}).substr(0, 55));
  const std::string error = "ostrane-dat: ";
  const std::tuple<std::string, int, std::string> cases[] = {
      {"list a.dat", 0, "A.TXT\nMY FILE.TXT\nZ\xC3\x84.DAT\n"},
      {"list u.dat", 0, "\u00C3\u00A9/\n"},
      {"extract u.dat", 2,
       error + "\u00C3\u00A9/: not extracted: its name contains a path separator\n"},
      {"list \xD0\x96.dat", 2, error + "\xD0\x96.dat: cannot be opened: it is not there.\n"},
      {"list none", 2, error + "none: cannot be opened: it is not there.\n"},
      {"list empty.dat --json", 0, "[\n]\n"},
      {"list a.dat --nothing", 2, error + "--nothing: is not an option of list.\n"},
      {"list a.dat --lnog", 2, error + "--lnog: is not an option of list. Did you mean --long?\n"},
      {"lst a.dat", 2, error + "lst: is not a command. Did you mean list?\n"},
      {"help lst", 2, error + "lst: is not a command. Did you mean list?\n"},
      {"--versoin", 2,
       error + "--versoin: is not an option of ostrane-dat. Did you mean --version?\n"},
      {"-V", 0, std::string("ostrane-dat ") + version + "\n"},
      {"list --version", 0, std::string("ostrane-dat ") + version + "\n"},
      {"list a.dat --sort size", 0, "MY FILE.TXT\nA.TXT\nZ\xC3\x84.DAT\n"},
      {"list u.dat a.dat", 0,
       "u.dat: \u00C3\u00A9/\na.dat: A.TXT\na.dat: MY FILE.TXT\na.dat: Z\xC3\x84.DAT\n"},
      {"diff a.dat u.dat", 1,
       "Only in a.dat: A.TXT, 6 bytes\nOnly in a.dat: MY FILE.TXT, 1 byte\n"
       "Only in a.dat: Z\xC3\x84.DAT, 9000 bytes\nOnly in u.dat: \u00C3\u00A9/, 1 byte\n"},
      {"diff a.dat a.dat --json", 0, "[\n]\n"},
      {"diff a.dat none", 2, error + "none: cannot be opened: it is not there.\n"},
      {"extract a.dat A.TXT -o -", 0, "text \xE4"},
      {"extract a.dat *.TXT -o -", 2, error + "-o takes one entry.\n"},
      {"extract a.dat A.TXT -o a.dat", 2,
       error + "a.dat: cannot be written: it is read by this command.\n"},
      {"export a.dat * --as bmp", 2, error + "--as: bmp not in {gif,png,sheet}: see --help\n"},
      {"extract a.dat B*", 2, error + "B*: no entry has this name.\n"},
      {"extract a.dat -d a.dat/in", 2,
       error + "a.dat/in: cannot be made: it is not in a folder.\n"},
      {"extract -v a.dat A.TXT -d new/in", 0, error + "new/in/A.TXT: is written\n"},
      {"build -v new/in -o b.dat", 0, error + "b.dat: is written\n"},
      {"extract names.dat S NO", 2,
       error + "S: not extracted: the archive ends before it does\n" + error +
           "NO: not extracted: the archive ends before it does\n"},
      {"extract bad.dat ..", 2, error + "..: not extracted: its name means a folder\n"},
      {"compare -v a.dat same.txt -o r", 0, error + "r: is written\n"},
      {"compare a.dat other.txt -o r", 1, ""},
      {"compare u.dat one.txt -o -", 1, compared},
      {"compare a.dat same.txt -o a.dat", 2,
       error + "a.dat: cannot be written: it is read by this command.\n"},
      {"compare a.dat same.txt -o same.txt", 2,
       error + "same.txt: cannot be written: it is read by this command.\n"},
      {"check a.dat", 0, ""},
      {"check bad.dat half.dat", 1,
       "bad.dat: it has 4 bytes after the end record's offset\n"
       "bad.dat: A: entry 1 has its name too\n"
       "bad.dat: ..: cannot become a file: its name means a folder\n"
       "half.dat: ..: cannot become a file: its name means a folder\n"},
      {"remove bad.dat A", 2,
       error + "bad.dat: has 4 bytes that belong to no entry and would be lost.\n"},
      {"add a.dat nul", 2, error + "nul: cannot become an entry: its name means a device.\n"},
      {"add a.dat a.dat", 2, error + "a.dat: cannot be written: it is read by this command.\n"},
      {"rename a.dat A.TXT z\xC3\xA4.dat", 2,
       error + "z\xC3\xA4.dat: is the name of another entry.\n"},
      {"rename a.dat ? B.TXT", 2, error + "?: no entry has this name.\n"},
      {"rename a.dat * B.TXT", 2, error + "*: is the name of several entries.\n"},
      {"rename a.dat A.TXT ABCDEFGHIJKLMN", 2,
       error + "ABCDEFGHIJKLMN: is longer than 13 characters.\n"},
      {"remove -n a.dat A.TXT", 0,
       error + "a.dat: would be written\n" + error + "A.TXT: is removed\n"},
      {"extract -n a.dat A.TXT -d dry", 0, error + "dry/A.TXT: would be written\n"},
      {"extract -n half.dat * -d dry", 1,
       error + "dry/A: would be written\n" + error +
           "..: not extracted: its name means a folder\n"},
      {"add -v a.dat \xC3\xA4\xE2\x82\xAC.txt", 0,
       error + "a.dat: is written\n" + error +
           "\xC3\xA4\xE2\x82\xAC.txt: becomes \xC3\x84\xE2\x82\xAC.TXT\n"},
      {"remove a.dat ?.txt", 0, ""},
      {"rename -v a.dat MY*T A", 0,
       error + "a.dat: is written\n" + error + "MY FILE.TXT: becomes A\n"},
      {"remove -v a.dat \xC3\x84* A", 0,
       error + "a.dat: is written\n" + error + "A: is removed\n" + error +
           "\xC3\x84\xE2\x82\xAC.TXT: is removed\n"},
      {"list a.dat", 0, "Z\xC3\x84.DAT\n"},
  };
  for (const auto& [command_line, status, printed] : cases) {
    const result seen = run(command_line);
    SCOPED_TRACE(command_line);
    EXPECT_EQ(seen.status, status);
    const bool fails = printed.starts_with(error);
    EXPECT_EQ(seen.output, fails ? "" : printed);
    EXPECT_EQ(seen.errors, fails ? printed : "");
  }
}

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

// Only an old archive may be in the folder of a build and its target.
TEST_F(commands_test, NeverWritesToAnInput) {
  write_bytes("in/ALPHA.TXT", "alpha");
  write_bytes("in/B.TXT", "b");
  fs::create_hard_link("in/ALPHA.TXT", "other");
  for (const std::string target : {"in/ALPHA.TXT", "other"}) {
    const result seen = run("build in -o " + target);
    EXPECT_EQ(seen.errors,
              "ostrane-dat: " + target + ": cannot be written: it is read by this command.\n");
    EXPECT_EQ(seen.status, 2);
    EXPECT_EQ(bytes_of(target), "alpha");
  }
}

TEST_F(commands_test, RenamesAnEntryInTheOrderOfNamesOrInItsPlace) {
  EXPECT_EQ(run("rename a.dat a.txt zz").status, 0);
  EXPECT_EQ(bytes_of("a.dat"), archive_bytes({entries[1], {"ZZ", entries[0].bytes}, entries[2]}));
  EXPECT_EQ(run("rename --keep-order a.dat zz B.TXT").status, 0);
  EXPECT_EQ(bytes_of("a.dat"),
            archive_bytes({entries[1], {"B.TXT", entries[0].bytes}, entries[2]}));
}

TEST_F(commands_test, OverwritesExtractedFilesInPlace) {
  write_bytes("A.TXT", std::string(100, 'o'));
  fs::create_hard_link("A.TXT", "other");
  EXPECT_EQ(run("extract --overwrite a.dat A.TXT").status, 0);
  EXPECT_EQ(bytes_of("other"), entries[0].bytes);
}

TEST_F(commands_test, AddsAndReplacesEntriesAndKeepsTheOthers) {
  write_bytes("b.txt", "new");
  write_bytes("sub/a.txt", "newer");
  EXPECT_EQ(run("add a.dat b.txt sub/a.txt").status, 0);
  EXPECT_EQ(bytes_of("a.dat"),
            archive_bytes({{"A.TXT", "newer"}, {"B.TXT", "new"}, entries[1], entries[2]}));
  write_bytes("none.dat", std::string(4, '\0'));
  EXPECT_EQ(run("add none.dat b.txt").status, 0);
  EXPECT_EQ(bytes_of("none.dat"), archive_bytes({{"B.TXT", "new"}}));
  const auto with_end_name = [](std::string archive) { return archive.replace(25, 3, "END"); };
  write_bytes("none.dat", with_end_name(archive_bytes({{"A.TXT", "1"}})));
  EXPECT_EQ(run("add none.dat sub/a.txt").status, 0);
  EXPECT_EQ(bytes_of("none.dat"), with_end_name(archive_bytes({{"A.TXT", "newer"}})));
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

TEST_F(commands_test, ReportsEqualNames) {
  const std::string error = "ostrane-dat: ";
  const texts files = {"in/ABCDEFGHI.TXT1", "in/ABCDEFGHI.TXT2", "sub/abcdefghi.txt3"};
  for (const std::string& name : files) write_bytes(name, name);
  const auto too_long = [&error](const std::string& file) {
    return error + file + ": its name is too long; the entry is ABCDEFGHI.TXT, which is replaced\n";
  };
  // The second entry of the archive after the command.
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"build in -o b.dat",
       error + "ABCDEFGHI.TXT2: its entry has the same name as that of ABCDEFGHI.TXT1\n", files[1]},
      {"add --force b.dat " + files[0] + " " + files[2],
       error + files[0] + ": not added: " + files[2] + " becomes the same entry\n" +
           too_long(files[0]) + too_long(files[2]),
       files[2]},
      {"extract b.dat", error + "ABCDEFGHI.TXT: not extracted: entry 2 was written over it\n",
       files[2]}};
  for (const auto& [command_line, printed, second] : cases) {
    const result seen = run(command_line);
    EXPECT_EQ(seen.status, 1) << command_line;
    EXPECT_EQ(seen.errors, printed);
    EXPECT_EQ(bytes_of("b.dat"),
              archive_bytes({{"ABCDEFGHI.TXT", files[0]}, {"ABCDEFGHI.TXT", second}}));
  }
  for (const std::string& refused : {"b.dat " + files[0], std::string("b.dat 1/A.TXT 2/a.txt")}) {
    for (const char* file : {"1/A.TXT", "2/a.txt"}) write_bytes(file, file);
    const std::string before = bytes_of("b.dat");
    EXPECT_EQ(run("add " + refused).status, 2);
    EXPECT_EQ(bytes_of("b.dat"), before);
  }
  EXPECT_EQ(bytes_of("ABCDEFGHI.TXT"), files[2]);
  write_bytes("longer_than_this.txt", "");
  EXPECT_NE(run("add -v b.dat longer_than_this.txt").errors.find("its name is too long"),
            std::string::npos);
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
