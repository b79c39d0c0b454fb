#include <sys/stat.h>

#include <csignal>
#include <cstdio>
#include <future>

#include "child_process.h"
#include "command/commands.h"
#include "command/interruption.h"
#include "command_fixture.h"
#include "data/icon_packer.h"
#include "pictures/icon_exporter.h"

namespace ostrane {

using commands_posix_test = command_test;

// Links to pipes and devices stay too. A pipe waits for its reader.
TEST_F(commands_posix_test, WritesToPipesAndDevicesAndReplacesNone) {
  write_bytes("in/A.TXT", "a");
  const std::string archive = archive_bytes({{"A.TXT", "a"}});
  write_bytes("a.dat", archive);
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  fs::create_symlink("pipe", "link");
  fs::create_symlink("/proc/self/fd/1", "output");
  for (const char* target : {"pipe", "link"}) {
    std::future<std::string> read = std::async([] { return bytes_of("pipe"); });
    EXPECT_EQ(run(std::string("build in -o ") + target).status, 0);
    EXPECT_EQ(read.get(), archive) << target;
  }
  EXPECT_EQ(run("build in -o output").output, archive);
  EXPECT_EQ(run("build in -o /dev/null").status, 0);
  EXPECT_EQ(run("extract a.dat A.TXT -o output").output, "a");
  write_bytes("l.txt", "A.TXT\n\n");
  EXPECT_TRUE(run("compare a.dat l.txt -o output").output.ends_with("Shiplist     \r\n"));
  const std::pair<std::string, std::string> cases[] = {
      {"build in -o /dev/full", "/dev/full: cannot be written: the disk is full.\n"},
      {"list pipe", "pipe: cannot be opened: it is a pipe.\n"},
      {"list /dev/null", "/dev/null: cannot be opened: it is a device.\n"},
      {"add a.dat pipe", "pipe: cannot be opened: it is a pipe.\n"},
      {"build in -o in", "in: cannot be written: it is a folder.\n"}};
  for (const auto& [job, error] : cases) EXPECT_EQ(run(job).errors, "ostrane-dat: " + error) << job;
  EXPECT_TRUE(fs::is_fifo("pipe") && fs::is_symlink("link") && fs::is_symlink("output"));
}

// The standard input is that of the process.
TEST_F(commands_posix_test, ReadsStandardInput) {
  const std::string archive = archive_bytes({{"A.TXT", "text"}, {"B.TXT", ""}});
  write_bytes("a.dat", archive);
  write_bytes("l.txt", "A.TXT\nB.TXT\n\n");
  write_bytes("p.gif", "GIF89a");
  write_bytes("j.json", R"({"frames":[],"meta":{"image":"s.png"}})");
  const std::tuple<const char*, const char*, std::string> cases[] = {
      {"a.dat", "list -", "A.TXT\nB.TXT\n"},
      {"a.dat", "extract - A.TXT -o -", "text"},
      {"a.dat", "check -", ""},
      {"a.dat", "diff - a.dat", ""},
      {"a.dat", "compare - l.txt -o r", ""},
      {"l.txt", "compare a.dat - -o r", ""},
      {"l.txt", "import - -o i.shp --palette a.dat",
       "ostrane-dat: standard input: cannot be read as a PNG: Not a PNG file.\n"},
      {"j.json", "import - -o i.shp --palette a.dat",
       "ostrane-dat: s.png: cannot be opened: it is not there.\n"},
      {"p.gif", "import - -o i.shp --palette a.dat",
       "ostrane-dat: standard input: cannot be read as a GIF: it is not a GIF.\n"}};
  run_in_process([&] {
    for (const auto& [input, job, output] : cases) {
      const bool is_import = std::string_view(job).starts_with("import");
      if (is_import && make_icon_exporter() == nullptr) continue;
      ASSERT_NE(std::freopen(input, "r", stdin), nullptr);
      const result seen = run(job);
      EXPECT_EQ(seen.output + seen.errors, output) << job;
      EXPECT_EQ(seen.status, is_import ? 2 : 0) << job;
    }
  });
}

// Each tries again until the other is done.
TEST_F(commands_posix_test, ChangesAtOnceLoseNothing) {
  write_bytes("a.dat", archive_bytes({}));
  std::vector<std::future<int>> adds;
  for (int i = 0; i < 4; ++i) {
    const std::string name = "F" + std::to_string(i);
    write_bytes(name, name);
    adds.push_back(std::async(std::launch::async, [name] {
      return command::add({.archive = "a.dat", .files = {name}});
    }));
  }
  for (auto& add : adds) EXPECT_EQ(add.get(), 0);
  EXPECT_EQ(run("list a.dat").output, "F0\nF1\nF2\nF3\n");
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

// The file that the link leads to is changed.
TEST_F(commands_posix_test, KeepsLinksToWhatItWrites) {
  write_bytes("in/A.TXT", "a");
  write_bytes("x.dat", archive_bytes({{"X", "x"}}));
  write_bytes("game/a.dat", "old");
  fs::create_symlink("game/a.dat", "link");
  const std::pair<const char*, std::string> cases[] = {
      {"extract x.dat X -o link", "x"},
      {"build in -o link", archive_bytes({{"A.TXT", "a"}})},
      {"rename link A.TXT B", archive_bytes({{"B", "a"}})},
      {"add link in/A.TXT", archive_bytes({{"A.TXT", "a"}, {"B", "a"}})},
      {"remove link B", archive_bytes({{"A.TXT", "a"}})}};
  for (const auto& [job, bytes] : cases) {
    EXPECT_EQ(run(job).errors, "") << job;
    EXPECT_EQ(bytes_of("game/a.dat"), bytes) << job;
    EXPECT_TRUE(fs::is_symlink("link")) << job;
  }
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
      EXPECT_EQ(run(job).errors, "ostrane-dat: a.dat: cannot be written: it is read-only.\n");
    }
    EXPECT_EQ(run("extract a.dat -d in/new").errors,
              "ostrane-dat: in/new: cannot be made: access is not allowed.\n");
    EXPECT_EQ(run("build . -o in/b.dat").errors,
              "ostrane-dat: in/: cannot be written to: access is not allowed.\n");
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

TEST_F(commands_posix_test, ImportsNoHiddenPicture) {
  if (make_icon_exporter() == nullptr) GTEST_SKIP() << "built without libpng and giflib";
  write_bytes("a.dat", archive_bytes({{"F.SHP", shp_file({picture(1, 1)})}}));
  EXPECT_EQ(run("export a.dat F.SHP -d out").status, 0);
  write_bytes("out/.F-0002.png", "");
  EXPECT_EQ(run("import out -o n.shp --palette a.dat").errors, "");
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
  fs::create_hard_link("a.dat", "third");
  EXPECT_EQ(run("remove -q a.dat B.TXT").errors, "");
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
