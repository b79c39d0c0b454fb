#include <sys/stat.h>

#include <csignal>

#include "child_process.h"
#include "command/interruption.h"
#include "command_fixture.h"

namespace ostrane {

using commands_posix_test = command_test;

TEST_F(commands_posix_test, DoesNotReplaceAPipe) {
  write_bytes("in/A.TXT", "a");
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  EXPECT_EQ(run("build in -o pipe").errors,
            "ostrane-dat: pipe: cannot be written: access is not allowed.\n");
  EXPECT_TRUE(fs::is_fifo("pipe"));
}

// The code page lacks Cyrillic letters. A name in another case is another file.
TEST_F(commands_posix_test, ReplacesOnlyTheNamedFile) {
  write_bytes("in/A.TXT", "a");
  for (const char* name : {"out/\xD1\x84.jpg", "out/\xD0\xBF.txt", "out/B.DAT"}) {
    write_bytes(name, "other");
  }
  EXPECT_EQ(run("build in -o out/\xD0\xB0.dat").status, 0);
  EXPECT_EQ(run("build in -o in/\xD0\xB0.dat").errors, "");
  fs::remove("in/\xD0\xB0.dat");
  write_bytes("game/ostrane.dat", "other");
  EXPECT_EQ(run("build in -o game/OSTRANE.DAT").status, 0);
  EXPECT_EQ(bytes_of("game/ostrane.dat"), "other");
  EXPECT_EQ(run("build in -o out/b.dat").status, 0);
  EXPECT_EQ(bytes_of("out/B.DAT"), "other");
  EXPECT_EQ(files_at("out").size(), 5U);
  fs::rename("out/b.dat", "out/OSTRANE.DAT");
  write_bytes("out/ostrane.dat", "other");
  EXPECT_EQ(run("remove out/OSTRANE.DAT A.TXT").status, 0);
  EXPECT_EQ(bytes_of("out/ostrane.dat"), "other");
  write_bytes("a.dat", archive_bytes({{"A.TXT", "a"}}));
  write_bytes("l.txt", "A.TXT\n\n");
  fs::create_symlink("a.dat", "link");
  EXPECT_EQ(run("compare a.dat l.txt -o link").status, 2);
  EXPECT_EQ(run("compare a.dat l.txt -o A.DAT").status, 0);
  EXPECT_EQ(bytes_of("a.dat"), archive_bytes({{"A.TXT", "a"}}));
}

// One rule for all commands that write. Root may write to all files.
TEST_F(commands_posix_test, RefusesAReadOnlyArchive) {
  write_bytes("in/A.TXT", "a");
  write_bytes("a.dat", archive_bytes({{"A.TXT", "b"}}));
  const auto before = files_at(".");
  fs::permissions(".", fs::perms::all);
  fs::permissions("in", fs::perms(0555));
  fs::permissions("a.dat", fs::perms(0444));
  run_in_process([&] {
    drop_root();
    for (const char* job : {"add a.dat in/A.TXT", "remove a.dat A.TXT", "build in -o a.dat"}) {
      EXPECT_EQ(run(job).errors, "ostrane-dat: a.dat: cannot be written: access is not allowed.\n");
    }
    EXPECT_EQ(run("extract a.dat -d in/new").errors,
              "ostrane-dat: in/new: cannot be made: access is not allowed.\n");
    EXPECT_EQ(files_at("."), before);
  });
  fs::permissions("in", fs::perms::all);
}

TEST_F(commands_posix_test, ReportsWhatIsNoFile) {
  write_bytes("in/A.TXT", "a");
  fs::create_directory("in/folder");
  fs::create_symlink("nothing", "in/link");
  fs::create_symlink("folder", "in/other");
  ASSERT_EQ(mkfifo("in/pipe", 0600), 0);
  const result seen = run("build in");
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(seen.errors,
            "ostrane-dat: link: skipped: it is a link that leads nowhere\n"
            "ostrane-dat: pipe: skipped: it is not a regular file\n");
}

TEST_F(commands_posix_test, NotesThatOtherNamesKeepTheOldArchive) {
  write_bytes("in/A.TXT", "a");
  write_bytes("in/B.TXT", "b");
  EXPECT_EQ(run("build in -o a.dat").errors, "");
  for (const char* job : {"remove a.dat B.TXT", "add a.dat in/B.TXT", "build in -o a.dat"}) {
    const std::string old = bytes_of("a.dat");
    fs::remove("other");
    fs::create_hard_link("a.dat", "other");
    const result seen = run(job);
    EXPECT_EQ(seen.status, 0) << job;
    EXPECT_EQ(seen.errors,
              "ostrane-dat: a.dat: its other names (hard links) keep the old archive\n");
    EXPECT_EQ(bytes_of("other"), old);
    EXPECT_EQ(fs::hard_link_count("a.dat"), 1U);
  }
}

// The signal is raised first, so each job ends at its first check.
TEST_F(commands_posix_test, ASignalEndsAJobAndLeavesNoFile) {
  write_bytes("a.dat", archive_bytes({{"A.TXT", std::string(9000, 'a')}}));
  write_bytes("b.txt", "b");
  const auto before = files_at(".");
  run_in_process([&] {
    command::catch_signals();
    std::raise(SIGTERM);
    for (const char* job : {"add a.dat nul", "build . -o c.dat", "extract a.dat",
                            "extract a.dat * -d out", "list a.dat", "remove a.dat A.TXT"}) {
      const failing_calls watched;
      EXPECT_THROW(command::run_command(arguments_of(job)), command::interruption) << job;
      EXPECT_EQ(files_at("."), before) << job;
      const auto made = std::count(watched.calls.begin(), watched.calls.end(), "open_lock");
      EXPECT_TRUE(made == 0 && !fs::exists("out")) << job;
    }
  });
}

}  // namespace ostrane
