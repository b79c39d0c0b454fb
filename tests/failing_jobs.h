#pragma once

#include <set>

#include "complete_files.h"
#include "pictures/icon_exporter.h"
#include "test_screen.h"

// The tool's jobs on files, and what must hold after a failure.
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
inline const std::set<std::string> may_be_silent = {"remove_file", "replace", "flush_folder",
                                                    "close_file",  "lock",    "copy_permissions",
                                                    "list",        "info_at", "info_of"};

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
    start_tool(root / "c" / "program", make_icon_exporter());
    open_bytes(archive);
    new_messages();
    job.open_dialog();
  }
  static job_result result_of(const std::function<void()>& job) {
    job();
    return {all_files(root), new_messages()};
  }
  static void check(const file_job& tried, const std::string& call, const std::string& words,
                    bool is_success, const job_result& after, const job_result& done) {
    EXPECT_LE(after.messages.size(), tried.reports.size() > 1 ? 2U : 1U);
    std::string text;
    for (const std::string& message : after.messages) text += message + "\n";
    const auto holds = [&text](const std::string& part) { return text.find(part) != text.npos; };
    const bool full = words == "the disk is full" || words.starts_with("it would be larger");
    const bool stops = full && call == "write_some" && tried.reports.size() > 2;
    EXPECT_TRUE(!stops || holds("The extraction was stopped. ")) << text;
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
  // Shows icons, and answers with this item of a menu and this file to save.
  std::function<void()> answering(std::size_t item, const char* name) {
    return [this, item, name] {
      click_row("I.SHP");
      answers.item = item;
      answers.file = root / "d" / "work" / name;
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
       answering(0, "Ostrane.dat"),
       [] { user::open_menu(Form1.List1, 0); },
       false,
       true},
      {{" The series was not saved."},
       answering(2, "i-0001.png"),
       [] { user::open_menu(Form1.s16_image, 2); }},
  };
};

}  // namespace ostrane
