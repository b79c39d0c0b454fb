#include "handlers/open_path.h"
#include "icon_fixture.h"

namespace ostrane {
namespace {

using from_outside_test = tool_test;

// Paths of the system below the root of the drives. F5 reads the open archive again.
TEST_F(from_outside_test, OpensAnArchiveOrItsFolder) {
  const std::string archive = archive_bytes({{"A.TXT", "a"}, {"B.TXT", "b"}});
  const std::string refused = " is no ostrane.dat, and no folder that holds one.";
  const std::tuple<const char*, std::string, texts> cases[] = {
      {"c/with", "C:\\with", {}},
      {"c/with/", "C:\\with", {}},
      {"c/empty/../with/OSTRANE.DAT", "C:\\with", {}},
      {"c/with/other.dat", "C:\\", {"C:\\with\\other.dat" + refused}},
      {"c/empty", "C:\\", {"C:\\empty" + refused}},
      {"c/empty/ostrane.dat", "C:\\", {"C:\\empty\\ostrane.dat" + refused}},
      {"c/gone", "C:\\", {"C:\\gone" + refused}},
  };
  for (const auto& [path, folder, messages] : cases) {
    reset_drives();
    write("C:\\with\\OSTRANE.DAT", archive);
    write("C:\\with\\other.dat", archive);
    make_folder("C:\\empty");
    restart();
    EXPECT_EQ(Form1.TakesDrop(root / path), messages.empty()) << path;
    user::drop(Form1, root / path);
    EXPECT_EQ(new_messages(), messages);
    EXPECT_EQ(Form1.Text1.Text(), messages.empty() ? "2" : "");
    EXPECT_EQ(Form2.Dir1.Path(), folder) << path;
    start_tool(root / "c" / "program", nullptr, root / path);
    EXPECT_EQ(new_messages(), messages);
    EXPECT_EQ(Form1.List1.ListCount(), messages.empty() ? 3 : 0);
    write("C:\\with\\OSTRANE.DAT", archive_bytes({{"A.TXT", "a"}}));
    user::press(Form1, Form1.keys[2]);
    EXPECT_EQ(Form1.Text1.Text(), messages.empty() ? "1" : "") << Form1.keys[2].name;
  }
}

// Enter on the open folder reads its archive. The dialog first shows the current folder if that
// holds one.
TEST_F(from_outside_test, TheDialogFindsTheArchive) {
  write("C:\\with\\ostrane.dat", archive_bytes({{"A.TXT", "a"}}));
  make_folder("C:\\empty");
  for (const std::string current : {"C:\\with", "C:\\empty"}) {
    restart(current);
    user::click(Form1.mnu_open);
    EXPECT_EQ(Form2.Dir1.Path(), current == "C:\\with" ? current : "C:\\");
    user::click(Form2.Command2);
    Form2.Dir1.Path = "C:\\";
    user::click(Form1.mnu_open);
    EXPECT_EQ(Form2.Dir1.Path(), "C:\\") << "not the first time";
    std::int32_t row = 0;
    while (Form2.Dir1.List(row) != "with") ++row;
    user::confirm_folder(Form2.Dir1, row);
    EXPECT_TRUE(Form2.Visible());
    user::confirm_folder(Form2.Dir1, Form2.Dir1.open_row());
    EXPECT_FALSE(Form2.Visible());
    EXPECT_EQ(Form1.Text1.Text(), "1");
  }
}

}  // namespace
}  // namespace ostrane
