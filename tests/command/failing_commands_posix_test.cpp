#include <cerrno>
#include <optional>

#include "command_fixture.h"
#include "complete_files.h"
#include "data/icon_packer.h"

namespace ostrane {

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

// Each file call fails in turn. Each file is then the old one or the complete new one. A status of
// 0 stands for complete results, any other for a message.
TEST_F(failing_commands_test, FaultsLeaveTheOldOrTheCompleteNewFile) {
  const std::string jobs[] = {"add a.dat in/a.txt",
                              "remove a.dat B.TXT",
                              "build in",
                              "build in -o b.dat",
                              "extract a.dat -d out",
                              "compare a.dat ships.txt -o list.txt",
                              "export a.dat I.SHP -d out",
                              "import png -o i.shp --palette a.dat"};
  const std::pair<call_fault, std::string> faults[] = {
      {{.reason = EACCES}, "not allowed"},
      {{.reason = EPERM, .lasting = true}, "not allowed"},
      {{.reason = EROFS}, "cannot be written to"},
      {{.reason = EBUSY}, "in use"},
      {{.reason = EIO}, "Input/output error"},
      {{.reason = ENOSPC, .lasting = true}, "disk is full"},
      {{.kind = call_fault::lies, .reason = EIO}, "Input/output error"},
      {{.kind = call_fault::interrupted}, "Interrupted"},
      {{.kind = call_fault::does_nothing}, ""}};
  int tried = 0;
  for (const std::string& job : jobs) {
    prepare();
    const file_map before = all_files(".");
    const int done_status = run(job).status;
    const file_map done = all_files(".");
    for (const auto& [fault, words] : faults) {
      for (int at = 0;; ++at, ++tried) {
        prepare();
        std::optional<failing_calls> failing;
        failing.emplace(at, fault);
        const result seen = run(job);
        const texts calls = failing->calls;
        const bool happened = failing->happened();
        failing.reset();
        if (!happened) break;
        const std::string& call = calls[static_cast<std::size_t>(at)];
        SCOPED_TRACE(testing::Message()
                     << job << " " << call << " " << at << " " << words << fault.lasting << "\n"
                     << seen.errors);
        file_map after = all_files(".");
        remove_leftovers(after, before, fault, call);
        expect_complete_files(after, before, done);
        EXPECT_TRUE(seen.status == done_status ? after == done
                                               : seen.errors.find(words) != std::string::npos);
        const bool is_done = seen.status == done_status ||
                             seen.errors.find("The archive was made, but") != std::string::npos;
        // An extraction looks at the archive once more after its last file.
        const bool is_told = fault.kind == call_fault::fails && !job.starts_with("extract");
        EXPECT_TRUE(!is_told || is_done == (after == done));
      }
    }
  }
  RecordProperty("faults", tried);
  EXPECT_GT(tried, 2000);
}

}  // namespace ostrane
