#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "child_process.h"
#include "failing_calls.h"
#include "tool_fixture.h"

// Builds that are killed, that run at the same time, and that other programs disturb.
namespace ostrane {

enum { reported_success = 10, reported_other_copy = 11 };  // exit status of a copy

// Copies of the tool build in one folder, each in a separate process.
struct builds_test : tool_test {
  const file_map sources = {{"a.txt", some_bytes(150000)}, {"b.txt", ""}, {"c.txt", "c"}};
  const std::string archive =
      archive_bytes({{"A.TXT", sources.at("a.txt")}, {"B.TXT", ""}, {"C.TXT", "c"}});
  const char* const asked = std::getenv("OSTRANE_PAIRS");
  const int pairs = asked == nullptr ? 15 : std::atoi(asked);

  static pid_t start_copy(const auto&... fault) {
    return start_process([&] {
      const failing_calls calls(fault...);
      build_in();
      const std::string message = new_messages().back();
      const bool other_copy = message.find(": another ") != std::string::npos;
      ASSERT_TRUE(other_copy || message.starts_with("Your new Ostrane.dat")) << message;
      _exit(other_copy ? reported_other_copy : reported_success);
    });
  }
  // Restarts the tool with the files and an old archive in C:\work.
  void restart_beside(const std::string& old_archive) const {
    file_map all = sources;
    all[old_archive] = "the old one";
    restart_with(all);
  }
  // There is one archive, whatever a killed copy left, and the next build succeeds.
  void check(std::initializer_list<int> statuses) {
    bool created = false;
    for (const int status : statuses) {
      created |= status == reported_success;
      EXPECT_TRUE(status == reported_success || status == reported_other_copy || status == -1)
          << status;
    }
    file_map archives = files_in("C:\\work");
    std::erase_if(archives, [](const auto& file) { return file.first.size() != 11; });
    ASSERT_EQ(archives.size(), 1U);
    const std::string& left = archives.begin()->second;
    EXPECT_TRUE(left == archive || (!created && left == "the old one"));
    restart();
    build_in();
    EXPECT_EQ(new_messages().size(), 1U);
    EXPECT_EQ(names_in("C:\\work"), (texts{"OSTRANE.DAT", "a.txt", "b.txt", "c.txt"}));
    EXPECT_TRUE(read("C:\\work\\OSTRANE.DAT") == archive);
  }
};

TEST_F(builds_test, KilledAtAnyCallLeavesACompleteArchive) {
  int at = 0;
  for (int status = -1; status == -1 && !HasFailure(); ++at) {
    SCOPED_TRACE(at);
    restart_beside("ostrane.dat");
    status = exit_status(start_copy(at));
    check({status});
  }
  EXPECT_GT(at, 30);
}

// A new archive is flushed before it replaces the old one, and the folder after.
TEST_F(builds_test, FlushesTheArchiveThenItsFolder) {
  restart_beside("ostrane.dat");
  const failing_calls none;
  build_in();
  texts flushes = none.calls;
  std::erase_if(flushes, [](const std::string& call) {
    return call != "replace" && !call.starts_with("flush_");
  });
  EXPECT_EQ(flushes, (texts{"flush_to_disk", "replace", "replace", "flush_folder"}));
}

// In half of the pairs each copy may be killed at any call. In an eighth the first copy is killed
// at any time. In a quarter the file system has no locks.
TEST_F(builds_test, StartedTogetherLeaveACompleteArchive) {
  std::mt19937 random(std::random_device{}());
  for (int pair = 0; pair < 2 * pairs && !HasFailure(); ++pair) {
    restart_beside(pair % 3 == 0 ? "OSTRANE.DAT" : "Ostrane.dat");
    const auto start_one = [&] {
      if (pair % 4 == 1) return start_copy("lock", ENOLCK);  // as on some network file systems
      const bool is_killed = pair % 2 == 0 && random() % 3 == 0;
      return start_copy(is_killed ? static_cast<int>(random() % 70) : INT32_MAX);
    };
    const pid_t first = start_one();
    usleep(static_cast<useconds_t>(random() % 3000));
    if (pair % 8 == 3) kill(first, SIGKILL);
    const pid_t second = start_one();
    check({exit_status(first), exit_status(second)});
  }
}

TEST_F(builds_test, StoppedAtAnyCallLeavesACompleteArchive) {
  std::mt19937 random(std::random_device{}());
  for (int pair = 0; pair < pairs && !HasFailure(); ++pair) {
    restart_beside(pair % 2 == 0 ? "Ostrane.dat" : "ostrane.dat");
    const int at = static_cast<int>(random() % 70);
    SCOPED_TRACE(at);
    const pid_t first = start_copy(at, call_fault{.kind = call_fault::stops});
    int status = 0;
    waitpid(first, &status, WUNTRACED);
    const int end = exit_status(start_copy());
    kill(first, SIGCONT);
    check({WIFSTOPPED(status) ? exit_status(first) : WEXITSTATUS(status), end});
  }
}

// If another program moves or replaces the temporary file, the old archive stays and the failure is
// reported.
TEST_F(builds_test, LosingTheTemporaryFileKeepsTheOldArchive) {
  const fs::path work = disk_path("C:\\work");
  // The change, and whether a file has the name of the temporary one afterwards.
  const std::pair<std::function<void(const fs::path&)>, bool> faults[] = {
      {[](const fs::path& file) { fs::rename(file, disk_path("C:\\elsewhere")); }, false},
      {[&](const fs::path&) { fs::rename(work, disk_path("C:\\moved")); }, true},
      {[](const fs::path& file) { fs::remove(file), mkfifo(file.c_str(), 0600); }, true},
      {[](const fs::path& file) { fs::remove(file), std::ofstream{file}; }, true},
      {[](const fs::path& file) { fs::remove(file), fs::create_directory(file); }, true},
  };
  for (const auto& [inject, is_there] : faults) {
    restart_beside("ostrane.dat");
    fs::path temporary;
    failing_calls watched;
    watched.before_call = [&, &inject = inject](const std::string& call) {
      if (call != "flush_to_disk") return;
      for (const auto& found : fs::directory_iterator(work)) {
        if (found.path().extension() == ".new") temporary = found.path();
      }
      inject(temporary);
    };
    build_in();
    EXPECT_EQ(new_messages(),
              texts{"C:\\work\\OSTRANE.DAT cannot be written: another program has moved the new "
                    "file. No new archive was made."});
    if (fs::exists(disk_path("C:\\moved"))) fs::rename(disk_path("C:\\moved"), work);
    EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
    EXPECT_EQ(fs::exists(temporary), is_there) << &inject - &faults[0].first;
    for (const auto& found : fs::directory_iterator(work)) {
      if (!found.is_regular_file()) fs::remove(found);
    }
  }
  check({});
}

TEST_F(builds_test, RemovesOnlyTheTemporaryFilesOfEndedCopies) {
  restart_beside("OSTRANE.DAT");
  write("C:\\elsewhere", "");
  const std::string time = "000000000000000";
  const texts kept = {".OSTRANE.DAT." + time + "2.new", ".OSTRANE.DAT." + time + "3.new",
                      ".OSTRANE.DAT.x.new", ".other.dat." + time + "1.new", ".OTHERS.lock"};
  for (const std::string& name : kept) write("C:\\work\\" + name, "");
  const fs::path link = disk_path("C:\\work\\" + kept[1]);
  fs::remove(link);
  fs::create_symlink("../elsewhere", link);
  for (const char* name : {".OSTRANE.DAT.", ".F00.DAT."}) {
    write("C:\\work\\" + (name + time) + "1.new", "");
    write("C:\\work\\" + std::string(name) + "lock", "");
  }
  const int held = open(disk_path("C:\\work\\" + kept[0]).c_str(), O_RDONLY);
  EXPECT_EQ(flock(held, LOCK_EX), 0);
  build_in();
  close(held);
  texts names = kept;
  names.insert(names.end(), {"OSTRANE.DAT", "a.txt", "b.txt", "c.txt"});
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names_in("C:\\work"), names);
  EXPECT_TRUE(fs::is_symlink(link) && fs::exists(link));
}

TEST_F(builds_test, RefusesALinkAsLockFile) {
  restart_beside("ostrane.dat");
  fs::create_symlink("../made", disk_path("C:\\work\\.OSTRANE.DAT.lock"));
  build_in();
  EXPECT_EQ(new_messages(), texts{"C:\\work\\.OSTRANE.DAT.lock cannot be opened: it is a link. No "
                                  "new archive was made."});
  EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one");
  EXPECT_FALSE(fs::exists(disk_path("C:\\made")));
}

// Another program replaces the new archive by its own, before the change of case.
TEST_F(builds_test, DoesNotDeleteAnArchiveOfAnotherProgram) {
  restart_beside("Ostrane.dat");
  failing_calls watched;
  watched.before_call = [&watched](const std::string&) {
    if (std::ranges::count(watched.calls, "replace") != 2) return;
    fs::remove(disk_path("C:\\work\\Ostrane.dat"));
    write("C:\\work\\Ostrane.dat", "another");
    write("C:\\work\\ostrane.DAT", "and another");
  };
  build_in();
  EXPECT_EQ(read("C:\\work\\OSTRANE.DAT"), "another");
  EXPECT_EQ(read("C:\\work\\ostrane.DAT"), "and another");
}

}  // namespace ostrane
