#include "command_fixture.h"
#include "complete_files.h"
#include "data/icon_packer.h"

using namespace ostrane;

struct failing_commands_test : command_test {
  static void prepare() {
    picture drawn(4, 4);
    drawn.set(1, 2, 3);
    for (const auto& found : fs::directory_iterator(".")) fs::remove_all(found);
    write_bytes("a.dat", archive_bytes({{"0.TXT", ""},
                                        {"A.TXT", std::string(9000, 'a')},
                                        {"B.TXT", "b"},
                                        {"I.SHP", shp_file({drawn})}}));
    write_bytes("in/a.txt", std::string(5000, 'n'));
    write_bytes("in/ostrane.dat", "old");
    for (const char* old : {"out/A.TXT", "out/I-0001.png", "list.txt", "b.dat", "i.shp"}) {
      write_bytes(old, "old");
    }
    write_bytes("ships.txt", "A.TXT\nX.TXT\n\n");
    run("export a.dat I.SHP -d png");
  }
};

// A status of 0 stands for complete results, any other for a message.
TEST_F(failing_commands_test, FaultsLeaveTheOldOrTheCompleteNewFile) {
  struct end {
    result seen;
    file_map files;
  };
  int tried = 0;
  for (const std::string job :
       {"add a.dat in/a.txt", "remove a.dat B.TXT", "build in", "build in -o b.dat",
        "extract a.dat -d out", "compare a.dat ships.txt -o list.txt", "export a.dat I.SHP -d out",
        "import png -o i.shp --palette a.dat"}) {
    SCOPED_TRACE(job);
    const auto check = [&](const failed_call& failed, const end& after, const end& done) {
      const auto says = [&](const std::string& words) {
        return after.seen.errors.find(words) != std::string::npos;
      };
      const bool is_same = after.files == done.files;
      const bool is_done = after.seen.status == done.seen.status;
      const auto kind = failed.fault.kind;
      const bool says_why = kind == call_fault::does_nothing || says(failed.words);
      EXPECT_TRUE(is_done ? is_same : says_why) << after.seen.errors;
      const bool says_made = says("The archive was made, but");
      EXPECT_TRUE(!says_made || after.seen.status == 1);
      // An extraction looks at the archive once more after its last file.
      const bool is_told = kind == call_fault::fails && !job.starts_with("extract");
      EXPECT_TRUE(!is_told || (is_done || says_made) == is_same);
    };
    tried += expect_old_or_new_files(
        ".", prepare,
        [&] {
          return end{run(job), all_files(".")};
        },
        check);
  }
  RecordProperty("faults", tried);
  EXPECT_GT(tried, 2000);
}
