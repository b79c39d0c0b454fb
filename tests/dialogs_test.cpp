#include "tool_fixture.h"

namespace ostrane {
namespace {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;

// What the four dialogs have in common.
struct dialog {
  platform::form& window;
  platform::drive_list& Drive1;
  platform::dir_list& Dir1;
  platform::file_list& File1;
  platform::text_box* Text1;  // that shows the folder, if there is one
  platform::menu_item& menu;
  platform::button& cancel;

  // With the folder of the files, and the field if there is one.
  void expect_at(const std::string& drive, const std::string& folder,
                 const std::string& field) const {
    EXPECT_EQ((texts{Drive1.Drive(), Dir1.Path(), File1.Path()}), (texts{drive, folder, folder}));
    EXPECT_EQ(Text1 == nullptr ? field : Text1->Text(), field);
  }
};

template <typename Form>
dialog dialog_of(Form& form, platform::text_box* field, platform::menu_item& menu,
                 platform::button& cancel) {
  return {form, form.Drive1, form.Dir1, form.File1, field, menu, cancel};
}

class dialogs_test : public tool_test {
 protected:
  // Calls `check` with each dialog open in a tool of its own, with an archive read.
  template <typename Check>
  void with_each(const Check& check) {
    make_folder("D:\\Sub\\Deep");
    for (int i = 0; i < 4; ++i) {
      begin("D:\\Sub");
      open_archive({{"A.TXT", "a"}});
      const dialog dialogs[] = {dialog_of(Form2, nullptr, Form1.mnu_open, Form2.Command2),
                                dialog_of(Form4, &Form4.Text1, Form1.mnu_ext, Form4.Command3),
                                dialog_of(Form5, &Form5.Text1, Form1.mnu_make, Form5.Command2),
                                dialog_of(Form6, nullptr, Form1.mnu_read_filelist, Form6.Command2)};
      SCOPED_TRACE(i);
      user::click(dialogs[i].menu);
      check(dialogs[i]);
    }
  }
};

TEST_F(dialogs_test, ListsTheFilesOfItsPatternAndHandsBack) {
  for (const char* name : {"OsTrane.Dat", "b.TXT", "a.txt", "c.bin"}) {
    write(std::string("D:\\Sub\\") + name, "");
  }
  const std::string all = "a.txt b.TXT c.bin OsTrane.Dat ";
  const std::map<platform::form*, std::string> expected = {
      {&Form2, "OsTrane.Dat "}, {&Form4, all}, {&Form5, all}, {&Form6, "a.txt b.TXT "}};
  with_each([&](const dialog& d) {
    const bool hides = d.Text1 != nullptr;  // the main window; the others disable it
    EXPECT_TRUE(Form1.Visible() == !hides && Form1.Enabled() == hides && d.window.Visible());
    d.Dir1.Path = "D:\\Sub";
    std::string names;
    for (std::int32_t row = 0; row < d.File1.ListCount(); ++row) names += d.File1.List(row) + " ";
    EXPECT_EQ(names, expected.at(&d.window));
    user::click(d.cancel);
    EXPECT_TRUE(Form1.Visible() && Form1.Enabled() && !d.window.Visible());
  });
}

// Begins where the tool does, the first dialog on drive C:. A change carries through from the drive
// to the folder, the files and the field, and stays.
TEST_F(dialogs_test, FollowsTheDriveAndKeepsTheFolderWhenCancelled) {
  with_each([](const dialog& d) {
    d.expect_at("d: [other]", &d.window == &Form2 ? "C:\\" : "D:\\Sub", "");
    user::choose(d.Drive1, 0);
    d.expect_at("c: [test]", "C:\\", "C:\\");
    user::choose(d.Drive1, 1);
    user::open_folder(d.Dir1, 1);
    for (int time = 0; time < 2; ++time) {
      d.expect_at("d: [other]", "D:\\Sub", "D:\\Sub");
      user::click(d.cancel);
      user::click(d.menu);
    }
  });
}

// It goes to drive C:. Where that does not answer either it stays where it was, and says so once.
TEST_F(dialogs_test, RecoversFromADriveThatDoesNotAnswer) {
  for (const bool c_answers : {true, false}) {
    with_each([&](const dialog& d) {
      d.Dir1.Path = "D:\\Sub\\Deep";  // not where the drive's text leads
      if (d.Text1 != nullptr) user::type(*d.Text1, "typed");
      if (!c_answers) fs::rename(root / "c", root / "away");
      user::choose(d.Drive1, 2);
      EXPECT_EQ(new_messages(),
                texts{"You are trying to access a Drive that isn't responding.\n\rDrive in error: "
                      ">e: []<\n\rCheck that the Drive is working properly, and has a Diskette or "
                      "CD-ROM inserted. Then try again."});
      if (c_answers) d.expect_at("c: [test]", "C:\\", "C:\\");
      if (!c_answers) d.expect_at("d: [other]", "D:\\Sub\\Deep", "typed");
      EXPECT_TRUE(d.window.Visible());
      if (!c_answers) fs::rename(root / "away", root / "c");
    });
  }
}

}  // namespace
}  // namespace ostrane
