#include <windows.h>

#include <random>

#include "command_fixture.h"
#include "files/program_folder.h"

// Copies of ostrane-dat that build in one folder at the same time.
using namespace ostrane;

using builds_windows_test = command_test;

// A process that builds in the folder "work".
class running_copy {
 public:
  running_copy() {
    const fs::path program = files::program_folder() / "ostrane-dat.exe";
    std::wstring line = L"ostrane-dat build -q work";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    const BOOL started = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE,
                                        CREATE_NO_WINDOW, nullptr, nullptr, &start, &process_);
    EXPECT_NE(started, 0) << program;
  }
  running_copy(const running_copy&) = delete;
  running_copy& operator=(const running_copy&) = delete;
  ~running_copy() {
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }

  void stop() const { SuspendThread(process_.hThread); }
  void go_on() const { ResumeThread(process_.hThread); }
  void kill() const { TerminateProcess(process_.hProcess, killed); }
  DWORD end() const {
    DWORD status = STILL_ACTIVE;
    WaitForSingleObject(process_.hProcess, INFINITE);
    GetExitCodeProcess(process_.hProcess, &status);
    return status;
  }
  static constexpr DWORD killed = 99;

 private:
  PROCESS_INFORMATION process_ = {};
};

// In a third of the pairs the first copy is killed, in a third it is stopped while the second runs.
TEST_F(builds_windows_test, PairsOfCopiesLeaveACompleteArchive) {
  const std::string bytes(300000, 'a');
  const std::string archive = archive_bytes({{"A.TXT", bytes}, {"B.TXT", "b"}});
  std::mt19937 random(std::random_device{}());
  const char* const asked = std::getenv("OSTRANE_PAIRS");
  const int pairs = asked == nullptr ? 15 : std::atoi(asked);
  int complete = 0;
  for (int pair = 0; pair < pairs && !HasFailure(); ++pair) {
    SCOPED_TRACE(pair);
    fs::remove_all("work");
    write_bytes("work/a.txt", bytes);
    write_bytes("work/b.txt", "b");
    write_bytes("work/ostrane.dat", "the old one");
    const running_copy first;
    Sleep(random() % 120);
    if (pair % 3 == 1) first.kill();
    if (pair % 3 == 2) first.stop();
    const running_copy second;
    const DWORD last = second.end();
    first.go_on();
    bool built = false;
    for (const DWORD status : {first.end(), last}) {
      EXPECT_TRUE(status == 0 || status == 2 || status == running_copy::killed) << status;
      built |= status == 0;
    }
    const std::string left = bytes_of("work/OSTRANE.DAT");
    EXPECT_TRUE(left == archive || (!built && left == "the old one"));
    if (built) ++complete;
    EXPECT_EQ(run("build -q work").status, 0);
    const file_map all = files_at("work");
    EXPECT_EQ(all.size(), 3U);
    EXPECT_TRUE(bytes_of("work/OSTRANE.DAT") == archive);
  }
  EXPECT_GT(complete, 0);
}
