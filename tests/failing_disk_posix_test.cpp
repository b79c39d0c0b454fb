#include <sched.h>
#include <sys/mount.h>

#include <cerrno>
#include <set>

#include "child_process.h"
#include "failing_calls.h"
#include "icon_fixture.h"
#include "platform/code_page.h"

namespace ostrane {
namespace {

struct file_job {
  std::function<void()> job;
  texts told;          // a message of failure holds one of these
  bool quiet = false;  // also where it need not be told
};

// Calls that may fail unheard: those that tidy up, or come when the new file is in its place.
const std::set<std::string> may_be_quiet = {"remove_file", "replace", "flush_folder", "close_read"};

struct failing_disk_test : tool_test {
  // An archive is open; each job finds the file that it replaces.
  void prepare() {
    fs::remove_all(root / "d");
    write("D:\\work\\a.txt", some_bytes(70000));
    write("D:\\work\\b.txt", "");
    write("D:\\work\\ostrane.dat", "the old one");
    write("D:\\out\\B.TXT", "older");  // stays, as its entry is empty
    write("D:\\lists\\shplist.txt", "old");
    write("C:\\Shiplist-compare.txt", "old");
    write("D:\\ships.txt", "X\r\n\r\n");
    begin("D:\\lists");
    open_bytes(archive);
  }
  // With no archive open, as a new one would be read at once.
  static void build_afresh() {
    begin();
    build_in("D:\\work");
  }
  // All files on the drives, by names without regard to case: of each there is one.
  static file_map all_files() {
    file_map there;
    for (const auto& found : fs::recursive_directory_iterator(root)) {
      if (!found.is_regular_file()) continue;
      const std::string name = platform::upper_case(found.path().lexically_relative(root).string());
      EXPECT_TRUE(there.emplace(name, bytes_of(found.path())).second) << name;
    }
    return there;
  }
  static void check(const file_job& tried, const std::string& call, const std::string& words,
                    const file_map& before, const file_map& done) {
    const file_map after = all_files();
    for (const auto& [name, bytes] : after) {
      const auto is_whole_in = [&, &name = name, &bytes = bytes](const file_map& some) {
        const auto found = some.find(name);
        return found != some.end() && found->second == bytes;
      };
      EXPECT_TRUE(is_whole_in(before) || is_whole_in(done)) << name;
    }
    for (const auto& [name, bytes] : before) EXPECT_TRUE(after.contains(name)) << name;
    const texts messages = new_messages();
    // An extraction tells of entries and of its end.
    EXPECT_LE(messages.size(), tried.told.size() > 1 ? 2U : 1U);
    std::string told;
    for (const std::string& message : messages) told += message + "\n";
    const auto holds = [&told](const std::string& part) { return told.find(part) != told.npos; };
    const bool full = call == "write_some" && words == "the disk is full";
    EXPECT_TRUE(!full || tried.told.size() == 1 || holds("The extraction was stopped. ")) << told;
    if (holds(words)) {
      EXPECT_TRUE(std::any_of(tried.told.begin(), tried.told.end(), holds)) << told;
    } else {
      EXPECT_TRUE(tried.quiet || may_be_quiet.contains(call)) << told;
      EXPECT_TRUE(after == done) << told;
    }
    EXPECT_TRUE(Form1.List1.ListCount() == 0 || Form1.List1.ListCount() == 6);
    EXPECT_FALSE(Form2.Visible() || Form3.Visible());
    EXPECT_TRUE(Form1.Enabled() || Form6.Visible());
  }

  const std::string archive = archive_bytes({{"A.TXT", some_bytes(70000)},
                                             {"B.TXT", ""},
                                             {"C.TXT", some_bytes(9)},
                                             {"I.SHP", samples::shp_file(plain_icons(3, 40, 40))},
                                             palette_entry()});
};

// Each call to the system fails in turn, alone and with all behind it: each file is left as it was
// or as the job makes it, whole, and what was not done is told with its reason.
TEST_F(failing_disk_test, EachFileIsTheOldOneOrTheNewOneWhole) {
  const file_job jobs[] = {
      {[] { build_afresh(); }, {" No new archive was made."}},
      {[] { extract_into("D:\\out"); },
       {"not extracted:\n>", "was stopped. ", " Nothing was extracted."}},
      {[] { user::click(Form1.mnu_save); }, {"The list of files was not saved. "}},
      {[] { compare_with("D:\\", "ships.txt"); }, {" Nothing was compared."}},
      // A palette that cannot be read leaves the colours as they are.
      {[] { open_archive(); }, {"C:\\ostrane.dat"}, true},
      {[] { click_row("A.TXT"); }, {"C:\\ostrane.dat"}},
      {[] { click_row("I.SHP"); }, {"C:\\ostrane.dat"}},
  };
  const std::pair<int, const char*> reasons[] = {{ENOSPC, "the disk is full"},
                                                 {EIO, "Input/output error"}};
  int faults = 0;
  for (const file_job& tried : jobs) {
    prepare();
    const file_map before = all_files();
    tried.job();
    const file_map done = all_files();
    for (const auto& [reason, words] : reasons) {
      for (const bool lasting : {false, true}) {
        for (int at = 0;; ++at) {
          prepare();
          new_messages();
          failing_calls failing(at, reason, lasting);
          tried.job();
          if (!failing.happened()) break;
          const std::string& call = failing.made[static_cast<std::size_t>(at)];
          SCOPED_TRACE(testing::Message() << &tried - jobs << call << at << lasting << words);
          check(tried, call, words, before, done);
          ++faults;
        }
        EXPECT_TRUE(all_files() == done);
      }
    }
  }
  RecordProperty("faults", faults);
  EXPECT_GT(faults, 400);
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
    open_archive({{"LONG.TXT", some_bytes(180000)}});
    const file_map before = files_in("D:\\");
    extract_into("D:\\");
    EXPECT_EQ(new_messages(), texts{"The extraction was stopped. D:\\LONG.TXT cannot be written: "
                                    "the disk is full."});
    begin();
    build_in("D:\\");
    EXPECT_EQ(new_messages(), texts{"D:\\OSTRANE.DAT cannot be written: the disk is full. No new "
                                    "archive was made."});
    EXPECT_TRUE(files_in("D:\\") == before);
  }));
  if (end == not_possible) GTEST_SKIP() << "no drive can be mounted here";
  EXPECT_EQ(end, 0);
}

}  // namespace
}  // namespace ostrane
