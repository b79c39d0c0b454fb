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
  bool hides_main_window;
};

std::vector<dialog> dialogs() {
  return {{Form2, Form2.Drive1, Form2.Dir1, Form2.File1, nullptr, Form1.mnu_open, Form2.Command2,
           false},
          {Form4, Form4.Drive1, Form4.Dir1, Form4.File1, &Form4.Text1, Form1.mnu_ext,
           Form4.Command3, true},
          {Form5, Form5.Drive1, Form5.Dir1, Form5.File1, &Form5.Text1, Form1.mnu_make,
           Form5.Command2, true},
          {Form6, Form6.Drive1, Form6.Dir1, Form6.File1, nullptr, Form1.mnu_read_filelist,
           Form6.Command2, false}};
}

class dialogs_test : public tool_test {
 protected:
  // Calls `check` with each dialog open in a tool of its own, with an archive read.
  template <typename Check>
  void with_each(const Check& check, const std::string& current = "D:\\") {
    for (std::size_t i = 0; i < 4; ++i) {
      begin(current);
      open_archive({{"A.TXT", "a"}});
      const dialog d = dialogs()[i];
      user::click(d.menu);
      check(d);
    }
  }
  static void choose(const dialog& d, char letter) {
    for (std::size_t row = 0; row < d.Drive1.rows().size(); ++row) {
      if (d.Drive1.rows()[row].front() == letter) {
        user::choose(d.Drive1, static_cast<std::int32_t>(row));
      }
    }
  }
  static void expect_field(const dialog& d, const std::string& text) {
    if (d.Text1 == nullptr) return;
    EXPECT_EQ(d.Text1->Text(), text) << d.window.Caption();
  }
  // Makes the folder that drive C: is on answer no more.
  void take_drive_c_away() const { fs::rename(root / "c", root / "away"); }
  void bring_drive_c_back() const { fs::rename(root / "away", root / "c"); }
};

std::string failure_of(const std::string& drive) {
  return "You are trying to access a Drive that isn't responding.\n\rDrive in error: >" + drive +
         "<\n\rCheck that the Drive is working properly, and has a Diskette or CD-ROM inserted. "
         "Then try again.";
}

TEST_F(dialogs_test, HandsOverAndBack) {
  with_each([](const dialog& d) {
    EXPECT_EQ(Form1.Visible(), !d.hides_main_window) << d.window.Caption();
    EXPECT_EQ(Form1.Enabled(), d.hides_main_window) << d.window.Caption();
    EXPECT_TRUE(d.window.Visible());
    user::click(d.cancel);
    EXPECT_TRUE(Form1.Visible() && Form1.Enabled()) << d.window.Caption();
    EXPECT_FALSE(d.window.Visible());
  });
}

TEST_F(dialogs_test, StartsInTheCurrentFolderAndTheFirstOneOnDriveC) {
  make_folder("D:\\work");
  with_each(
      [](const dialog& d) {
        const std::string folder = &d.window == &Form2 ? "C:\\" : "D:\\work";
        EXPECT_EQ(d.Drive1.Drive(), "d: [other]");
        EXPECT_EQ(d.Dir1.Path(), folder);
        EXPECT_EQ(d.File1.Path(), folder);
        expect_field(d, "");
      },
      "D:\\work");
}

TEST_F(dialogs_test, ListsTheFilesOfItsPattern) {
  for (const char* name : {"OsTrane.Dat", "b.TXT", "a.txt", "c.bin"}) {
    write(std::string("D:\\sub\\") + name, "");
  }
  const texts expected[] = {{"OsTrane.Dat"},
                            {"a.txt", "b.TXT", "c.bin", "OsTrane.Dat"},
                            {"a.txt", "b.TXT", "c.bin", "OsTrane.Dat"},
                            {"a.txt", "b.TXT"}};
  std::size_t i = 0;
  with_each([&](const dialog& d) {
    d.Dir1.Path = "D:\\sub";
    texts names;
    for (std::int32_t row = 0; row < d.File1.ListCount(); ++row) names.push_back(d.File1.List(row));
    EXPECT_EQ(names, expected[i++]);
  });
}

// A change carries through from the drive to the folder, the files and the field, and stays.
TEST_F(dialogs_test, FollowsTheDriveAndKeepsTheFolderWhenCancelled) {
  make_folder("D:\\Sub\\Inner");
  with_each(
      [](const dialog& d) {
        choose(d, 'd');
        EXPECT_EQ(d.File1.Path(), "D:\\");
        for (const char* name : {"Sub", "Inner"}) {
          for (std::size_t row = 0; row < d.Dir1.rows().size(); ++row) {
            if (d.Dir1.rows()[row].name == name) {
              user::open_folder(d.Dir1, static_cast<std::int32_t>(row));
              break;
            }
          }
        }
        for (int time = 0; time < 2; ++time) {
          EXPECT_EQ(d.Drive1.Drive(), "d: [other]");
          EXPECT_EQ(d.Dir1.Path(), "D:\\Sub\\Inner");
          EXPECT_EQ(d.File1.Path(), "D:\\Sub\\Inner");
          expect_field(d, "D:\\Sub\\Inner");
          user::click(d.cancel);
          user::click(d.menu);
        }
      },
      "C:\\");
}

TEST_F(dialogs_test, RecoversFromADriveThatDoesNotAnswer) {
  with_each([this](const dialog& d) {
    d.Dir1.Path = "D:\\";
    if (d.Text1 != nullptr) user::type(*d.Text1, "typed");
    choose(d, 'e');
    EXPECT_EQ(new_messages(), texts{failure_of("e: []")});
    EXPECT_EQ(d.Drive1.Drive(), "c: [test]");
    EXPECT_EQ(d.Dir1.Path(), "C:\\");
    EXPECT_EQ(d.File1.Path(), "C:\\");
    expect_field(d, "C:\\");
    EXPECT_TRUE(d.window.Visible());
    EXPECT_EQ(Form6.Text1.Text(), "");
  });
}

// Without a change of the folder nothing follows: the files and the field stay as they are.
TEST_F(dialogs_test, ARecoveryToTheFolderThatIsOpenChangesNothing) {
  with_each([this](const dialog& d) {
    d.Dir1.Path = "C:\\";
    d.File1.Path = "D:\\";
    if (d.Text1 != nullptr) user::type(*d.Text1, "typed");
    choose(d, 'e');
    EXPECT_EQ(new_messages(), texts{failure_of("e: []")});
    EXPECT_EQ(d.Drive1.Drive(), "c: [test]");
    EXPECT_EQ(d.Dir1.Path(), "C:\\");
    EXPECT_EQ(d.File1.Path(), "D:\\");
    expect_field(d, "typed");
  });
}

// Where drive C: does not answer either the dialog stays where it was, and says so once.
TEST_F(dialogs_test, StaysWhereItWasIfTheRecoveryFails) {
  make_folder("D:\\sub");
  for (const char chosen : {'e', 'c'}) {
    with_each([&](const dialog& d) {
      d.Dir1.Path = "D:\\sub";
      if (d.Text1 != nullptr) user::type(*d.Text1, "typed");
      take_drive_c_away();
      choose(d, chosen);
      EXPECT_EQ(new_messages(), texts{failure_of(chosen == 'e' ? "e: []" : "c: [test]")});
      EXPECT_EQ(d.Drive1.Drive(), "d: [other]");
      EXPECT_EQ(d.Dir1.Path(), "D:\\sub");
      EXPECT_EQ(d.File1.Path(), "D:\\sub");
      expect_field(d, "typed");
      EXPECT_TRUE(d.window.Visible());
      bring_drive_c_back();
    });
  }
}

TEST_F(dialogs_test, SaysOnceThatNoDriveAnswers) {
  with_each([this](const dialog& d) {
    d.Dir1.Path = "D:\\";
    take_drive_c_away();
    fs::rename(root / "d", root / "gone");
    choose(d, 'e');
    EXPECT_EQ(new_messages(), texts{failure_of("e: []")});
    EXPECT_EQ(d.Dir1.Path(), "D:\\");
    bring_drive_c_back();
    fs::rename(root / "gone", root / "d");
  });
}

TEST_F(dialogs_test, TheCompareDialogShowsTheChosenFile) {
  write("D:\\a.txt", "");
  write("D:\\b.txt", "");
  begin("D:\\");
  open_archive({{"A.TXT", "a"}});
  user::click(Form1.mnu_read_filelist);
  for (const auto& [row, name] : {std::pair{1, "b.txt"}, {0, "a.txt"}, {5, "a.txt"}}) {
    user::select_file(Form6.File1, row);
    EXPECT_EQ(Form6.Text1.Text(), name);
    EXPECT_EQ(Form6.File1.FileName(), name);
  }
  user::type(Form6.Text1, "typed");
  Form6.Dir1.Path = "C:\\";
  EXPECT_EQ(Form6.File1.FileName(), "");
  EXPECT_EQ(Form6.Text1.Text(), "a.txt");
}

TEST_F(dialogs_test, TheListOfTheOpeningDialogOnlyShows) {
  write("C:\\ostrane.dat", "");
  user::click(Form1.mnu_open);
  Form2.File1.Refresh();
  user::select_file(Form2.File1, 0);
  EXPECT_EQ(Form2.File1.ListCount(), 1);
  EXPECT_EQ(Form2.File1.ListIndex(), -1);
}

}  // namespace
}  // namespace ostrane
