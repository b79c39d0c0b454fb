#include <sys/resource.h>
#include <sys/stat.h>

#include "child_process.h"
#include "failing_jobs.h"
#include "failing_memory_posix.h"

using namespace ostrane;

// Missing folders, folders without permission, and folders, pipes and links instead of files. The
// alarm ends a command that waits for the other end of a pipe.
TEST_F(failing_disk_test, EveryCommandReportsUnusableFiles) {
  const char* const folders[] = {"c", "d/work", "d/out", "d/lists"};
  using action = std::function<void(const fs::path&)>;
  const auto replace_files = [](const action& make) {
    return [make](const fs::path& folder) {
      const std::vector<fs::directory_entry> all(fs::directory_iterator(folder), {});
      for (const auto& found : all) {
        if (found.is_regular_file()) fs::remove(found), make(found);
      }
    };
  };
  const std::pair<std::string, action> cases[] = {
      {"is not there", [](const auto& folder) { fs::remove_all(folder); }},
      {"access is not allowed",
       [](const auto& folder) { fs::permissions(folder, fs::perms::none); }},
      {"it is a folder", replace_files([](const auto& file) { fs::create_directory(file); })},
      {"it is a pipe", replace_files([](const auto& file) { mkfifo(file.c_str(), 0600); })},
      {"it is a device",
       replace_files([](const auto& file) { fs::create_symlink("/dev/zero", file); })},
  };
  run_in_process([&] {
    alarm(30);
    for (const char* own : {"", "c", "d", "c/program"}) fs::permissions(root / own, fs::perms::all);
    drop_root();
    for (const auto& [reason, break_folder] : cases) {
      for (const file_job& job : jobs) {
        SCOPED_TRACE(testing::Message() << &job - jobs.data() << reason);
        prepare(job);
        for (const char* folder : folders) break_folder(root / folder);
        job.job();
        check(job, "", reason, false, {{}, new_messages()}, {{{"", ""}}, {}});
        std::error_code gone;
        for (const char* folder : folders) fs::permissions(root / folder, fs::perms::all, gone);
      }
    }
  });
}

// Each allocation fails in turn, alone or with all later ones. Jobs with many allocations test a
// sample of them. The command ends with a message.
TEST_F(failing_disk_test, OutOfMemoryEndsOnlyTheCommand) {
  for (int number = 0; number < 2 * static_cast<int>(jobs.size()); ++number) {
    const file_job& job = jobs[static_cast<std::size_t>(number / 2)];
    const bool lasting = number % 2 != 0;
    prepare(job);
    const job_result before = result_of([] {});
    const job_result done = result_of(job.job);
    for (long at = 1;; at += number == 0 || job.may_misreport_rename ? 1 : 1 + at / 20) {
      prepare(job);
      SCOPED_TRACE(testing::Message() << number << " " << at);
      bool happened = false;
      const job_result after = result_of([&] {
        const failing_memory failing(at, lasting);
        job.job();
        happened = failing.happened;
      });
      expect_complete_files(after.files, before.files, done.files);
      const std::string message = after.messages.empty() ? "" : after.messages.front();
      EXPECT_TRUE(after.messages == done.messages
                      ? after.files == done.files
                      : message.find("not enough memory") != std::string::npos);
      EXPECT_FALSE(after.files == done.files && message.ends_with("No new archive was made."));
      EXPECT_FALSE(Form3.Visible());
      EXPECT_EQ(tool_state.slots_loaded + 1, Form1.s16_image.loaded());
      const bool dialog = Form4.Visible() || Form5.Visible();
      const bool over = Form2.Visible() || Form6.Visible();
      EXPECT_TRUE(Form1.Visible() != dialog && Form1.Enabled() != over);
      if (!happened) break;
    }
  }
}

// The signal of the system does not end the program.
TEST_F(failing_disk_test, ABuildOverTheFileSizeLimitFails) {
  prepare(jobs[0]);
  run_in_process([&] {
    const rlimit limit = {50000, 50000};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    jobs[0].job();
    EXPECT_EQ(new_messages(),
              texts{"D:\\work\\OSTRANE.DAT cannot be written: it would be larger than the system "
                    "allows. No new archive was made."});
  });
}
