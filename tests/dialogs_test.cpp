#include "tool_fixture.h"

using namespace ostrane;

// Calls `check` with each dialog open in a restarted tool that has an archive open: the form, its
// field that shows the folder, or null, its menu item and its Cancel.
static void with_each(const auto& check) {
  const auto open = [&check](auto& form, forms_layer::text_box* field, auto& menu, auto& cancel) {
    restart("D:\\Sub");
    open_archive({{"A.TXT", "a"}});
    SCOPED_TRACE(form.designed.name);
    user::click(menu);
    check(form, field, menu, cancel);
  };
  make_folder("D:\\Sub\\Also");
  make_folder("D:\\Sub\\Deep");
  open(Form2, nullptr, Form1.mnu_open, Form2.Command2);
  open(Form4, &Form4.Text1, Form1.mnu_ext, Form4.Command3);
  open(Form5, &Form5.Text1, Form1.mnu_make, Form5.Command2);
  open(Form6, nullptr, Form1.mnu_read_filelist, Form6.Command2);
}

// `text` is that of the field.
static void expect_position(const auto& form, const forms_layer::text_box* field,
                            const std::string& drive, const std::string& folder,
                            const std::string& text) {
  EXPECT_EQ((texts{form.Drive1.Drive(), form.Dir1.Path(), form.File1.Path(),
                   field == nullptr ? text : field->Text()}),
            (texts{drive, folder, folder, text}));
}

using dialogs_test = tool_test;

// Form2 starts on drive C:, the others in the current folder. A change of the drive reaches folder,
// files and field, and a cancelled dialog keeps it.
TEST_F(dialogs_test, SyncsToTheDriveAndReturnsOnCancel) {
  with_each([](auto& form, const auto* field, auto& menu, auto& cancel) {
    const bool on_c = std::is_same_v<decltype(form), form2&>;
    expect_position(form, field, "d: [other]", on_c ? "C:\\" : "D:\\Sub", "");
    user::choose(form.Drive1, 0);
    expect_position(form, field, "c: [test]", "C:\\", "C:\\");
    user::choose(form.Drive1, 1);
    for (const std::int32_t row : {1, 3, 1}) {  // Sub, Deep, and back
      user::open_folder(form.Dir1, row);
      EXPECT_EQ(form.Dir1.Path(), row == 1 ? "D:\\Sub" : "D:\\Sub\\Deep");
    }
    for (int time = 0; time < 2; ++time) {
      expect_position(form, field, "d: [other]", "D:\\Sub", "D:\\Sub");
      EXPECT_TRUE(form.Visible() && !(Form1.Visible() && Form1.Enabled()));
      user::click(cancel);
      EXPECT_TRUE(Form1.Visible() && Form1.Enabled() && !form.Visible());
      user::click(menu);
    }
  });
}

// By a key or by opening the current folder again.
TEST_F(dialogs_test, ReloadsItsLists) {
  with_each([](auto& form, const auto* field, auto&...) {
    form.Dir1.Path = "D:\\Sub\\Deep";
    const std::function<void()> ways[] = {
        [&] { user::reload(form); }, [&] { user::open_folder(form.Dir1, form.Dir1.open_row()); }};
    for (const auto& ask : ways) {
      const auto folders = form.Dir1.ListCount();
      make_folder("D:\\Sub\\Deep\\Came");
      for (const char* name : {"a.txt", "oStrane.dat", "ostrane.data", "b.txt.x"})
        write(std::string("D:\\Sub\\Deep\\") + name, "");
      ask();
      EXPECT_EQ(form.Dir1.ListCount(), folders + 1);
      EXPECT_EQ(form.File1.ListCount(), field != nullptr ? 4 : 1);
      const bool archives = std::is_same_v<decltype(form), form2&>;
      EXPECT_EQ(form.File1.List(0), archives ? "oStrane.dat" : "a.txt");
      for (const auto& e : fs::directory_iterator(disk_path("D:\\Sub\\Deep"))) fs::remove(e);
      ask();
      EXPECT_EQ(form.File1.ListCount(), 0);
    }
    fs::remove_all(disk_path("D:\\Sub\\Deep"));
    for (const auto& ask : ways) {
      ask();
      EXPECT_EQ(new_messages(), texts{"D:\\Sub\\Deep cannot be read: it is not there."});
    }
    make_folder("D:\\Sub\\Deep");
  });
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

// The dialog goes to drive C:. If that does not answer either, it goes back to its last folder.
// Both cases show one message.
TEST_F(dialogs_test, RecoversFromADriveThatDoesNotAnswer) {
  for (const bool c_answers : {true, false}) {
    with_each([&](auto& form, auto* field, auto&...) {
      form.Dir1.Path = "D:\\Sub\\Deep";  // not where the drive's text leads
      if (field != nullptr) user::type(*field, "typed");
      if (!c_answers) fs::rename(root / "c", root / "away");
      user::choose(form.Drive1, 2);
      const texts seen = new_messages();
      EXPECT_TRUE(seen.size() == 1 && seen[0].find("Drive in error: >e: []<") != seen[0].npos);
      if (c_answers) expect_position(form, field, "c: [test]", "C:\\", "C:\\");
      if (!c_answers) expect_position(form, field, "d: [other]", "D:\\Sub\\Deep", "typed");
      EXPECT_TRUE(form.Visible());
      if (!c_answers) fs::rename(root / "away", root / "c");
    });
  }
}
