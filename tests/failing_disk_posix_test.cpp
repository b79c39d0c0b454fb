#include <sched.h>
#include <sys/mount.h>

#include <cerrno>
#include <set>

#include "child_process.h"
#include "failing_calls.h"
#include "icon_fixture.h"

namespace ostrane {
namespace {

using texts = std::vector<std::string>;
using files = std::map<std::string, std::string>;

const std::string list_saved = "A list of all files in ostrane.dat are saved in shplist.txt";

// One of these is in the text.
bool holds(const std::string& text, const texts& parts) {
  return std::any_of(parts.begin(), parts.end(),
                     [&](const std::string& part) { return text.find(part) != text.npos; });
}

class failing_disk_test : public icon_test {
 protected:
  // Runs `job` behind `prepare` again and again, with each of its calls to the system failing in
  // turn, alone and with all behind it, until one is left out of its reach. Each time `check` is
  // given the words for the failure.
  template <typename Prepare, typename Job, typename Check>
  void with_each_call_failing(const Prepare& prepare, const Job& job, const Check& check) {
    const std::pair<int, const char*> reasons[] = {{ENOSPC, "the disk is full"},
                                                   {EIO, "Input/output error"}};
    for (const auto& [reason, words] : reasons) {
      for (const bool lasting : {false, true}) {
        for (int at = 0;; ++at) {
          prepare();
          new_messages();
          failing_calls failing(at, reason, lasting);
          job();
          if (!failing.happened()) break;
          const std::string& call = failing.made[static_cast<std::size_t>(at)];
          SCOPED_TRACE(call + " " + std::to_string(at) + (lasting ? " and on: " : ": ") + words);
          check(words, call, new_messages());
        }
        EXPECT_EQ(new_messages().size(), messages_of_success);
      }
    }
  }

  std::size_t messages_of_success = 1;
};

// Calls that may fail unheard: those that tidy up, or come when the new file is in its place.
const std::set<std::string> may_be_quiet = {"remove_file", "replace", "flush_folder", "close_read"};

const std::vector<entry> entries = {
    {"A.TXT", some_bytes(70000, 1)}, {"B.TXT", ""}, {"C.TXT", some_bytes(9, 2)}};

TEST_F(failing_disk_test, ABuildLeavesTheOldArchiveOrTheNewOneWhole) {
  const files before = {{"a.txt", entries[0].bytes}, {"b.txt", ""}, {"ostrane.dat", "the old one"}};
  const std::string archive = archive_bytes({entries[0], {"B.TXT", ""}});
  int told = 0;
  with_each_call_failing(
      [&] {
        std::filesystem::remove_all(place("C:\\work"));
        for (const auto& [name, bytes] : before) write("C:\\work\\" + name, bytes);
        begin();
      },
      [] { build_in(); },
      [&](const char* words, const std::string& call, const texts& messages) {
        ASSERT_EQ(messages.size(), 1U);
        files after = files_in("C:\\work");
        if (after == before) {
          ++told;
          EXPECT_TRUE(holds(messages[0], {"C:\\work\\"}) && holds(messages[0], {words}));
          EXPECT_TRUE(messages[0].ends_with(" No new archive was made.")) << messages[0];
          return;
        }
        EXPECT_TRUE(may_be_quiet.contains(call)) << call;
        after.erase("a.txt");
        after.erase("b.txt");
        ASSERT_EQ(after.size(), 1U);
        EXPECT_TRUE(after.begin()->second == archive) << after.begin()->first;
      });
  EXPECT_GT(told, 100);
}

TEST_F(failing_disk_test, AnExtractionLeavesWholeEntriesAndTellsOfTheOthers) {
  const std::string archive = archive_bytes(entries);
  with_each_call_failing(
      [&] {
        for (const std::string& name : names_in("D:\\")) std::filesystem::remove(root / "d" / name);
        write("D:\\B.TXT", "older");  // stays, as its entry is empty
        begin();
        open_archive(entries);
      },
      [] { extract_into("D:\\"); },
      [&](const char* words, const std::string& call, const texts& messages) {
        const files after = files_in("D:\\");
        ASSERT_TRUE(messages.size() == 1 || messages.size() == 2) << messages.size();
        const std::string told = messages.front() + messages.back();
        for (const auto& [name, bytes] : entries) {
          const auto found = after.find(name);
          EXPECT_TRUE(found == after.end() ? holds(told, {">" + name, "stopped", "Nothing"})
                                           : found->second == (name == "B.TXT" ? "older" : bytes));
        }
        EXPECT_TRUE(after.contains("B.TXT"));
        const bool whole = after.size() == entries.size() && call == "close_read";
        EXPECT_TRUE(whole || (holds(told, {"C:\\ostrane.dat", "D:\\"}) && holds(told, {words})))
            << told;
        EXPECT_TRUE(read("C:\\ostrane.dat") == archive);
        const bool full = call == "write_some" && words == std::string("the disk is full");
        EXPECT_TRUE(!full || holds(told, {"The extraction was stopped."})) << told;
      });
}

// The list of files and the report of a comparison.
TEST_F(failing_disk_test, AListLeavesTheOldOneOrTheNewOneWhole) {
  const auto prepare = [&] {
    begin();
    open_archive(entries);
    write("C:\\shplist.txt", "old");
    write("C:\\Shiplist-compare.txt", "old");
    write("D:\\ships.txt", "X\r\n\r\n");
  };
  const struct {
    std::function<void()> job;
    const char* file;
    const char* begins;
    std::size_t messages_of_success;
  } lists[] = {
      {[] { user::click(Form1.mnu_save); }, "C:\\shplist.txt", "A.TXT\r\nB.TXT\r\nC.TXT\r\n", 1},
      {[] { compare_with("D:\\", "ships.txt"); }, "C:\\Shiplist-compare.txt", "Different", 0},
  };
  for (const auto& list : lists) {
    messages_of_success = list.messages_of_success;
    with_each_call_failing(
        prepare, list.job, [&](const char* words, const std::string& call, const texts& messages) {
          const std::string after = read(list.file);
          EXPECT_TRUE(after == "old" || after.starts_with(list.begins)) << after;
          const bool told = !messages.empty() && holds(messages[0], {words});
          EXPECT_EQ(told, after == "old");
          EXPECT_TRUE(told || may_be_quiet.contains(call)) << call;
          EXPECT_EQ(names_in("C:\\"),
                    (texts{"Shiplist-compare.txt", "ostrane.dat", "program", "shplist.txt"}));
        });
  }
}

// Whatever is read: one message a step, the windows stay usable, and nothing is kept of an archive
// whose index was not read whole.
TEST_F(failing_disk_test, ReadingTellsOnceAndGoesOn) {
  std::vector<entry> all = entries;
  all.push_back({"I.SHP", samples::shp_file(plain_icons(3, 40, 40))});
  all.push_back(palette_entry());
  write("C:\\ostrane.dat", archive_bytes(all));
  messages_of_success = 0;
  for (const char* row : {"", "A.TXT", "I.SHP", "GAME.PAL"}) {
    with_each_call_failing(
        [&] {
          begin();
          if (*row != 0) open_archive();
        },
        [&] { *row == 0 ? open_archive() : click_row(row); },
        [&](const char* words, const std::string& call, const texts& messages) {
          EXPECT_LE(messages.size(), 1U);
          // A palette that cannot be read leaves the colours as they are.
          const bool quiet = call != "open_to_read" || *row == 0;
          EXPECT_TRUE(messages.empty() ? quiet : holds(messages[0], {words, "is invalid"}));
          EXPECT_TRUE(Form1.Visible() && Form1.Enabled() && !Form2.Visible() && !Form3.Visible());
          EXPECT_TRUE(Form1.List1.ListCount() == 0 || Form1.List1.ListCount() == 6);
        });
  }
}

// A drive of 256 kB that is really full; in a process of its own, with which the drive goes.
TEST_F(failing_disk_test, ARealFullDiskLeavesNothingHalfMade) {
  if (geteuid() != 0) GTEST_SKIP() << "only root may mount a drive";
  const int end = end_of(begin_process([&] {
    const bool mounted = unshare(CLONE_NEWNS) == 0 &&
                         mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                         mount("none", (root / "d").c_str(), "tmpfs", 0, "size=256k") == 0;
    if (!mounted) _exit(not_possible);
    write("D:\\ostrane.dat", "the old one");
    write("D:\\big.txt", some_bytes(180000));
    const files before = files_in("D:\\");
    build_in("D:\\");
    EXPECT_EQ(new_messages(), texts{"D:\\OSTRANE.DAT cannot be written: the disk is full. No new "
                                    "archive was made."});
    EXPECT_TRUE(files_in("D:\\") == before);
    begin();
    open_archive({{"LONG.TXT", some_bytes(180000)}});
    extract_into("D:\\");
    EXPECT_EQ(new_messages(), texts{"The extraction was stopped. D:\\LONG.TXT cannot be written: "
                                    "the disk is full."});
    EXPECT_TRUE(files_in("D:\\") == before);
    write("D:\\shplist.txt", "old");
    write("D:\\rest.txt", some_bytes(100000));
    begin("D:\\");
    open_archive(std::vector<entry>(2000, {"TWELVE.CHARS", ""}));
    user::click(Form1.mnu_save);
    EXPECT_EQ(new_messages(),
              texts{"The list of files was not saved. shplist.txt cannot be written: "
                    "the disk is full."});
    EXPECT_EQ(read("D:\\shplist.txt"), "old");
  }));
  if (end == not_possible) GTEST_SKIP() << "no drive can be mounted here";
  EXPECT_EQ(end, 0);
}

}  // namespace
}  // namespace ostrane
