#include "tool_fixture.h"

namespace ostrane {
namespace {

using file_list_test = tool_test;

// The list lies where the program was started, whatever folder the dialogs show. Without rows the
// tool says that it is saved all the same.
TEST_F(file_list_test, SavesEveryRowAsItIsInTheWorkingFolder) {
  const std::string list = "D:\\work\\shplist.txt";
  make_folder("D:\\work");
  begin("D:\\work");
  const auto expect_saved = [&](const std::string& text) {
    user::click(Form1.mnu_save);
    EXPECT_EQ(new_messages().back(), "A list of all files in ostrane.dat are saved in shplist.txt");
    EXPECT_EQ(read(list), text);
  };
  write(list, std::string(100, 'x'));
  open_archive({{" a.Shp ", "1"}, {std::string("B\0 C", 4), "2"}});
  expect_saved(" a.Shp \r\nB C\r\n\r\n");
  expect_saved(" a.Shp \r\nB C\r\n\r\n");
  open_archive("C:\\program");
  std::filesystem::remove(place(list));
  expect_saved("");
  EXPECT_EQ(names_in("D:\\work"), std::vector<std::string>{});
}

}  // namespace
}  // namespace ostrane
