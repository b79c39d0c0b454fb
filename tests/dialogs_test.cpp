#include <fstream>
#include <functional>

#include "tool_fixture.h"

namespace ostrane {
namespace {

// What the four dialogs have in common.
struct dialog {
  forms_layer::form& window;
  forms_layer::drive_list& Drive1;
  forms_layer::dir_list& Dir1;
  forms_layer::file_list& File1;
  forms_layer::text_box* Text1;  // shows the folder, or null
  forms_layer::menu_item& menu;
  forms_layer::button& cancel;

  // `field` is the text of Text1.
  void expect_position(const std::string& drive, const std::string& folder,
                       const std::string& field) const {
    const std::string shown = Text1 == nullptr ? field : Text1->Text();
    EXPECT_EQ((texts{Drive1.Drive(), Dir1.Path(), File1.Path(), shown}),
              (texts{drive, folder, folder, field}));
  }
};

template <typename Form>
dialog dialog_of(Form& form, forms_layer::text_box* field, forms_layer::menu_item& menu,
                 forms_layer::button& cancel) {
  return {form, form.Drive1, form.Dir1, form.File1, field, menu, cancel};
}

// Calls `check` with each dialog open in a restarted tool that has an archive open.
template <typename Check>
void with_each(const Check& check) {
  make_folder("D:\\Sub\\Deep");
  for (int i = 0; i < 4; ++i) {
    restart("D:\\Sub");
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

using dialogs_test = tool_test;

// Form2 starts on drive C:, the others in the current folder. A change of the drive reaches folder,
// files and field, and a cancelled dialog keeps it.
TEST_F(dialogs_test, SyncsToTheDriveAndReturnsOnCancel) {
  with_each([](const dialog& d) {
    d.expect_position("d: [other]", &d.window == &Form2 ? "C:\\" : "D:\\Sub", "");
    user::choose(d.Drive1, 0);
    d.expect_position("c: [test]", "C:\\", "C:\\");
    user::choose(d.Drive1, 1);
    user::open_folder(d.Dir1, 1);
    for (int time = 0; time < 2; ++time) {
      d.expect_position("d: [other]", "D:\\Sub", "D:\\Sub");
      EXPECT_TRUE(d.window.Visible() && !(Form1.Visible() && Form1.Enabled()));
      user::click(d.cancel);
      EXPECT_TRUE(Form1.Visible() && Form1.Enabled() && !d.window.Visible());
      user::click(d.menu);
    }
  });
}

// By a key or by opening the current folder again.
TEST_F(dialogs_test, ReloadsItsLists) {
  with_each([](const dialog& d) {
    d.Dir1.Path = "D:\\Sub\\Deep";
    const std::function<void()> ways[] = {[&] { user::reload(d.window); },
                                          [&] { user::open_folder(d.Dir1, d.Dir1.open_row()); }};
    for (const auto& ask : ways) {
      const auto folders = d.Dir1.rows().size();
      make_folder("D:\\Sub\\Deep\\Came");
      for (const char* name : {"a.txt", "oStrane.dat", "ostrane.data", "b.txt.x"}) {
        std::ofstream(disk_path("D:\\Sub\\Deep") / name);
      }
      ask();
      EXPECT_EQ(d.Dir1.rows().size(), folders + 1);
      const bool all = d.Text1 != nullptr;
      EXPECT_EQ(d.File1.ListCount(), all ? 4 : 1);
      EXPECT_EQ(d.File1.List(0), all || &d.window == &Form6 ? "a.txt" : "oStrane.dat");
      for (const auto& e : fs::directory_iterator(disk_path("D:\\Sub\\Deep"))) fs::remove(e);
      ask();
      EXPECT_EQ(d.File1.ListCount(), 0);
    }
  });
}

TEST_F(dialogs_test, ListsTextFilesAfterAnUnreadableFolder) {
  restart("D:\\gone");
  open_archive({{"A.TXT", "a"}});
  user::click(Form1.mnu_read_filelist);
  write("D:\\here\\a.dat", "");
  Form6.Dir1.Path = "D:\\here";
  EXPECT_TRUE(Form6.Visible() && Form6.File1.ListCount() == 0);
}

// The typed folder and name, the folder in the dialog afterwards, and the error number. A blank
// name does nothing.
TEST_F(dialogs_test, MakesAndOpensANewFolder) {
  const char* const cases[][4] = {{"D:\\", "  ", "D:\\", ""},
                                  {"D:\\", " New", "D:\\ New", ""},
                                  {"D:\\ New", "In", "D:\\ New\\In", ""},
                                  {"D:\\", " New", "D:\\ New\\In", " 58"},
                                  {"Q:\\", "In", "D:\\ New\\In", " 68"}};
  const std::string fault =
      "Problem encountered while trying to make new Folder. The error reported from Windows is: "
      "Error Number: ";
  restart("D:\\");
  open_archive({{"A.TXT", "a"}});
  user::click(Form1.mnu_ext);
  for (const auto& [typed, name, folder, error] : cases) {
    user::type(Form4.Text1, typed);
    user::type(Form4.Text2, name);
    user::click(Form4.Command1);
    const bool made = *error == '\0';
    EXPECT_EQ((texts{Form4.Dir1.Path(), Form4.File1.Path(), Form4.Text1.Text()}),
              (texts{folder, folder, made ? folder : typed}));
    EXPECT_EQ(new_messages(), made ? texts{} : texts{fault + error});
  }
}

// By drive C:; if that does not answer either, by its last folder. One message in both cases.
TEST_F(dialogs_test, RecoversFromADriveThatDoesNotAnswer) {
  for (const bool c_answers : {true, false}) {
    with_each([&](const dialog& d) {
      d.Dir1.Path = "D:\\Sub\\Deep";  // not where the drive's text leads
      if (d.Text1 != nullptr) user::type(*d.Text1, "typed");
      if (!c_answers) fs::rename(root / "c", root / "away");
      user::choose(d.Drive1, 2);
      const texts seen = new_messages();
      EXPECT_TRUE(seen.size() == 1 && seen[0].find("Drive in error: >e: []<") != seen[0].npos);
      if (c_answers) d.expect_position("c: [test]", "C:\\", "C:\\");
      if (!c_answers) d.expect_position("d: [other]", "D:\\Sub\\Deep", "typed");
      EXPECT_TRUE(d.window.Visible());
      if (!c_answers) fs::rename(root / "away", root / "c");
    });
  }
}

}  // namespace
}  // namespace ostrane
