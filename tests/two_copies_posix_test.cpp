#include <sys/stat.h>

#include <csignal>
#include <fstream>

#include "child_process.h"
#include "failing_calls.h"
#include "recording_screen.h"

namespace ostrane {
namespace {

enum { said_created = 10, said_failed = 11 };  // what a copy ends with

// Two copies of the tool build in one folder, each in a process of its own.
struct two_copies_test : tool_test {
  const file_map sources = {{"a.txt", some_bytes(150000)}, {"b.txt", ""}, {"c.txt", "c"}};
  const std::string archive =
      archive_bytes({{"A.TXT", sources.at("a.txt")}, {"B.TXT", ""}, {"C.TXT", "c"}});
  int pairs = 15;  // OSTRANE_PAIRS names another number

  two_copies_test() {
    if (const char* wanted = std::getenv("OSTRANE_PAIRS")) pairs = std::atoi(wanted);
    for (const auto& [name, bytes] : sources) write("C:\\work\\" + name, bytes);
  }
  // Ends with what was told, and has ended if that is neither a success nor another copy's work.
  static void build_and_say() {
    build_in();
    const std::string told = new_messages().back();
    const bool waited = told.find("another copy of the tool") != std::string::npos;
    ASSERT_TRUE(waited || told.starts_with("Your new Ostrane.dat")) << told;
    _exit(waited ? said_failed : said_created);
  }
  static pid_t begin_copy(int at, call_fault with) {
    return begin_process([&] {
      begin();
      const failing_calls faults(at, with);
      build_and_say();
    });
  }
  // The one archive there, without what a copy that was killed has left.
  static std::string archive_there() {
    std::string bytes;
    for (const auto& [name, found] : files_in("C:\\work")) {
      if (name.size() != 11 || name.find(".txt") != name.npos) continue;
      EXPECT_TRUE(bytes.empty()) << "two archives";
      bytes = found;
    }
    return bytes;
  }
  static void replace_archive(const char* name) {
    for (const auto& found : fs::directory_iterator(place("C:\\work"))) {
      if (found.path().extension() != ".txt") fs::remove(found);
    }
    write(std::string("C:\\work\\") + name, "the old one");
  }
  void check(std::initializer_list<int> ends) {
    bool created = false;
    for (const int end : ends) {
      created |= end == said_created;
      EXPECT_TRUE(end == said_created || end == said_failed || end == -1) << end;
    }
    const std::string left = archive_there();
    EXPECT_TRUE(left == archive || (!created && left == "the old one"));
    begin();
    build_in();
    EXPECT_EQ(new_messages().size(), 1U);
    EXPECT_EQ(names_in("C:\\work"), (texts{"OSTRANE.DAT", "a.txt", "b.txt", "c.txt"}));
    EXPECT_TRUE(read("C:\\work\\OSTRANE.DAT") == archive);
  }
};

TEST_F(two_copies_test, ThatBeginAtOneMomentLeaveAWholeArchive) {
  std::mt19937 random(std::random_device{}());
  for (int time = 0; time < pairs && !HasFailure(); ++time) {
    replace_archive(time % 2 == 0 ? "Ostrane.dat" : "OSTRANE.DAT");
    const pid_t first = begin_copy(INT32_MAX, {});
    usleep(static_cast<useconds_t>(random() % 3000));
    const pid_t second = begin_copy(INT32_MAX, {});
    check({end_of(first), end_of(second)});
  }
}

TEST_F(two_copies_test, OfWhichOneIsStoppedAtAnyCallLeaveAWholeArchive) {
  std::mt19937 random(std::random_device{}());
  for (int time = 0; time < pairs && !HasFailure(); ++time) {
    replace_archive(time % 2 == 0 ? "Ostrane.dat" : "ostrane.dat");
    const int at = static_cast<int>(random() % 70);
    SCOPED_TRACE(at);
    const pid_t first = begin_copy(at, {.kind = call_fault::stops});
    int status = 0;
    waitpid(first, &status, WUNTRACED);
    const int end = end_of(begin_copy(INT32_MAX, {}));
    kill(first, SIGCONT);
    check({WIFSTOPPED(status) ? end_of(first) : WEXITSTATUS(status), end});
  }
}

TEST_F(two_copies_test, OfWhichAThirdIsKilledLeaveAWholeArchive) {
  std::mt19937 random(std::random_device{}());
  for (int time = 0; time < pairs && !HasFailure(); ++time) {
    replace_archive("Ostrane.dat");
    const auto begin_one = [&] {
      const bool dies = random() % 3 == 0;
      return begin_copy(dies ? static_cast<int>(random() % 70) : INT32_MAX,
                        {.kind = call_fault::kills});
    };
    const pid_t first = begin_one();
    const pid_t second = begin_one();
    check({end_of(first), end_of(second)});
  }
}

// Whatever happens to what is written meanwhile, the old archive stays and the failure is told.
TEST_F(two_copies_test, ABuildWhoseFileIsTakenAwayKeepsTheOldArchive) {
  const fs::path work = place("C:\\work");
  const auto temporary = [&] {
    for (const auto& found : fs::directory_iterator(work)) {
      if (found.path().extension() == ".new") return found.path();
    }
    return fs::path();
  };
  const std::function<void()> spoilings[] = {
      [&] { fs::remove(temporary()); },
      [&] { fs::rename(temporary(), place("C:\\elsewhere")); },
      [&] { fs::rename(work, place("C:\\moved")); },
      [&] {
        const fs::path at = temporary();
        fs::remove(at);
        mkfifo(at.c_str(), 0600);
      },
      [&] {
        const fs::path at = temporary();
        fs::remove(at);
        std::ofstream(at) << "";
      },
      [&] {
        const fs::path at = temporary();
        fs::remove(at);
        fs::create_directory(at);
      },
  };
  for (const auto& spoil : spoilings) {
    replace_archive("ostrane.dat");
    begin();
    {
      recording_screen screen;
      screen.at_refresh = [&] {
        if (screen.told.back().find("C:\\work\\c.txt") != std::string::npos) spoil();
      };
      build_in();
      EXPECT_EQ(
          screen.told.back(),
          "dialog C:\\work\\OSTRANE.DAT cannot be written: another program has moved what was "
          "written. No new archive was made.");
    }
    if (fs::exists(place("C:\\moved"))) fs::rename(place("C:\\moved"), work);
    EXPECT_EQ(read("C:\\work\\ostrane.dat"), "the old one") << &spoil - spoilings;
    for (const auto& found : fs::directory_iterator(work)) {
      if (!found.is_regular_file()) fs::remove(found);
    }
  }
  check({});
}

}  // namespace
}  // namespace ostrane
