#include <sys/resource.h>
#include <sys/stat.h>

#include <set>

#include "child_process.h"
#include "failing_calls.h"
#include "failing_memory_posix.h"
#include "files/code_page.h"
#include "icon_fixture.h"
#include "pictures/icon_exporter.h"
#include "test_screen.h"

namespace ostrane {

struct file_job {
  texts reports;  // a failure message contains one of these
  std::function<void()> open_dialog;
  std::function<void()> job;
  bool silent = false;                // may ignore failures
  bool may_misreport_rename = false;  // a rename that happened may be reported as failed
};

// The files by their upper-case paths, and the messages.
struct job_result {
  file_map files;
  texts messages;
};

// Calls whose failure may be ignored: cleanup, optional queries, and calls after the new file has
// replaced the old one.
const std::set<std::string> may_be_silent = {"remove_file", "replace", "flush_folder",
                                             "close_file",  "lock",    "copy_permissions",
                                             "list",        "info_at", "info_of"};

const std::pair<call_fault, std::string> faults[] = {
    {{.reason = ENOSPC}, "the disk is full"},
    {{.reason = ENOSPC, .lasting = true}, "the disk is full"},
    {{.reason = EIO}, "Input/output error"},
    {{.reason = EIO, .lasting = true}, "Input/output error"},
    {{.kind = call_fault::lies, .reason = EIO}, "Input/output error"},
    {{.kind = call_fault::interrupted}, "Interrupted"},
    {{.reason = EACCES}, "access is not allowed"},
    {{.reason = EPERM, .lasting = true}, "access is not allowed"},
    {{.reason = EROFS}, "the disk cannot be written to"},
    {{.reason = EBUSY}, "it is in use"},
    {{.kind = call_fault::does_nothing}, "Input/output error"}};

struct failing_disk_test : tool_test {
  // Opens an archive and the job's dialog, and creates the file that the job replaces.
  void prepare(const file_job& job) {
    for (const char* drive : {"c", "d"}) fs::remove_all(root / drive);
    write("D:\\work\\a.txt", some_bytes(70000));
    write("D:\\work\\b.txt", "");
    write("D:\\work\\Ostrane.dat", "the old one");
    write("D:\\out\\B.TXT", "older");  // an empty entry does not overwrite it
    write("D:\\lists\\shplist.txt", "old");
    write("C:\\Shiplist-compare.txt", "old");
    write("D:\\lists\\ships.txt", "X\r\n\r\n");
    restart("D:\\lists");
    tool_state.export_icons = make_icon_exporter();
    open_bytes(archive);
    new_messages();
    job.open_dialog();
  }
  // No two paths differ in case only.
  static job_result result_of(const std::function<void()>& job) {
    job();
    job_result all = {{}, new_messages()};
    for (const auto& found : fs::recursive_directory_iterator(root)) {
      if (!found.is_regular_file()) continue;
      const std::string name = files::upper_case(found.path().lexically_relative(root).string());
      EXPECT_TRUE(all.files.emplace(name, bytes_of(found.path())).second) << name;
    }
    return all;
  }
  static void expect_complete_files(const job_result& after, const job_result& before,
                                    const job_result& done) {
    for (const auto& file : after.files) {
      const auto complete =
          std::ranges::count(before.files, file) + std::ranges::count(done.files, file);
      EXPECT_GT(complete, 0) << file.first;
    }
    for (const auto& [name, bytes] : before.files) EXPECT_TRUE(after.files.contains(name)) << name;
  }
  static void check(const file_job& tried, const std::string& call, const std::string& words,
                    bool is_success, const job_result& after, const job_result& done) {
    EXPECT_LE(after.messages.size(), tried.reports.size() > 1 ? 2U : 1U);
    std::string text;
    for (const std::string& message : after.messages) text += message + "\n";
    const auto holds = [&text](const std::string& part) { return text.find(part) != text.npos; };
    const bool full = call == "write_some" && words == "the disk is full";
    EXPECT_TRUE(!full || tried.reports.size() < 3 || holds("The extraction was stopped. ")) << text;
    if (holds(words)) {
      EXPECT_TRUE(std::any_of(tried.reports.begin(), tried.reports.end(), holds)) << text;
    } else {
      // A list is overwritten if no new file can be made.
      const bool in_place = call.starts_with("open_") && after.files == done.files;
      EXPECT_TRUE(tried.silent || may_be_silent.contains(call) || is_success || in_place) << text;
    }
    const bool says_done = !done.messages.empty() && holds(done.messages.back() + "\n");
    EXPECT_TRUE((!says_done && !text.empty()) || after.files == done.files) << text;
    EXPECT_TRUE(!is_success || after.messages == done.messages) << text;
    EXPECT_TRUE(Form1.List1.ListCount() == 0 || Form1.List1.ListCount() == 7);
    EXPECT_FALSE(Form2.Visible() || Form3.Visible());
    EXPECT_TRUE(Form1.Enabled() || Form6.Visible());
  }

  test_screen answers;
  // Shows icons, and answers with this menu item and this file to save.
  std::function<void()> answering(forms_layer::menu_item& item, const char* name) {
    return [this, &item, name] {
      click_row("I.SHP");
      answers.pick = [&item](const auto&) { return &item; };
      answers.save = [name](const auto&) {
        return forms_layer::save_answer{root / "d" / "work" / name};
      };
    };
  }

  // A failed seek to the empty entry must not stand for one to the next entry.
  const std::string archive = archive_bytes({{"0.TXT", ""},
                                             {"A.TXT", some_bytes(70000)},
                                             {"B.TXT", ""},
                                             {"C.TXT", some_bytes(9)},
                                             {"I.SHP", shp_file(plain_icons(14, 40, 40))},
                                             palette_entry()});
  const std::vector<file_job> jobs = {
      // Without an open archive; else the build would also read the new one.
      {{" No new archive was made.", "Your new Ostrane.dat"},
       [] { restart(), open_build_dialog("D:\\work"); },
       clicking(Form5.Command1)},
      {{"not extracted:\n>", "was stopped. ", " Nothing was extracted."},
       [] { open_extract_dialog("D:\\out"); },
       clicking(Form4.Command2)},
      {{"The list of files was not saved. "}, nothing, clicking(Form1.mnu_save)},
      {{" Nothing was compared."},
       [] { choose_shiplist("D:\\lists", "ships.txt"); },
       clicking(Form6.Command1)},
      // An unreadable palette is ignored.
      {{"C:\\ostrane.dat"}, clicking(Form1.mnu_open), clicking(Form2.Command1), true},
      {{"C:\\ostrane.dat"}, nothing, [] { click_row("A.TXT"); }},
      {{"C:\\ostrane.dat"}, nothing, [] { click_row("I.SHP"); }},
      {{"not extracted"},
       answering(Form1.mnu_extract_entry, "Ostrane.dat"),
       [] { user::open_menu(Form1.List1, 0); },
       false,
       true},
      {{" The series was not saved."},
       answering(Form1.mnu_save_series, "i-0001.png"),
       [] { user::open_menu(Form1.s16_image, 2); }},
  };
};

// Each file call fails in turn. Each file is then the old one or the complete new one, a failure is
// reported with its reason, and a reported success is one.
TEST_F(failing_disk_test, FaultsLeaveTheOldOrTheCompleteNewFile) {
  int tried = 0;
  for (const file_job& job : jobs) {
    prepare(job);
    const job_result before = result_of([] {});
    const job_result done = result_of(job.job);
    for (const auto& [fault, words] : faults) {
      for (int at = 0;; ++at, ++tried) {
        prepare(job);
        job_result after;
        failing_calls failing(at, fault);
        after = result_of(job.job);
        if (!failing.happened()) break;
        const std::string& call = failing.calls[static_cast<std::size_t>(at)];
        SCOPED_TRACE(testing::Message()
                     << &job - jobs.data() << call << at << fault.lasting << words);
        // A file that cannot be checked is deleted by the next build only.
        const bool lies = fault.kind == call_fault::lies;
        const bool may_leave_hidden = fault.lasting || lies || call.starts_with("info");
        // A file that was made but reported as failed may stay.
        const bool may_leave_empty = lies && call == "open_new";
        std::erase_if(after.files, [&](const auto& file) {
          const bool is_hidden = file.first.find("/.") != std::string::npos;
          const bool is_empty = file.second.empty() && !before.files.contains(file.first);
          return (may_leave_hidden && is_hidden) || (may_leave_empty && is_empty);
        });
        expect_complete_files(after, before, done);
        const bool is_success =
            fault.kind == call_fault::interrupted ||
            (lies && call == "replace" && !job.may_misreport_rename) ||
            (fault.kind == call_fault::does_nothing && call != "write_some" && call != "replace");
        check(job, call, words, is_success, after, done);
      }
    }
  }
  RecordProperty("faults", tried);
  EXPECT_GT(tried, 1000);
}

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
      expect_complete_files(after, before, done);
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

// A build and an extraction of a file that is larger than the limit.
TEST_F(failing_disk_test, FileSizeLimitLeavesNoPartialFile) {
  rlimit old = {};
  EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const rlimit limit = {50000, old.rlim_max};
  for (const file_job* job : {&jobs[0], &jobs[1]}) {
    prepare(*job);
    const job_result before = result_of([] {});
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const job_result after = result_of(job->job);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
    check(*job, "write_some", "it would be larger than the system allows", false, after, before);
    expect_complete_files(after, before, {{{"D/OUT/0.TXT", ""}}, {}});
    const bool is_stopped =
        after.messages.at(0).find("The extraction was stopped.") != std::string::npos;
    EXPECT_EQ(is_stopped, job == &jobs[1]);
  }
}

}  // namespace ostrane
