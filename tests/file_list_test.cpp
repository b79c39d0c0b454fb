#include "tool_fixture.h"

namespace ostrane {
namespace {

class file_list_test : public tool_test {
 protected:
  std::vector<std::string> save() {
    user::click(Form1.mnu_save);
    return new_messages();
  }
};

const std::vector<std::string> saved = {
    "A list of all files in ostrane.dat are saved in shplist.txt"};

// The list lies where the program was started, whatever folder the dialogs show.
TEST_F(file_list_test, SavesEveryRowAsItIsInTheWorkingFolder) {
  make_folder("D:\\work");
  begin("D:\\work");
  write("D:\\work\\shplist.txt", std::string(100, 'x'));
  open_archive({{" a.Shp ", "1"}, {std::string("B\0 C", 4), "2"}});
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(save(), saved);
    EXPECT_EQ(read("D:\\work\\shplist.txt"), " a.Shp \r\nB C\r\n\r\n");
  }
  EXPECT_EQ(names_in("D:\\work"), std::vector<std::string>{"shplist.txt"});
}

TEST_F(file_list_test, WithoutRowsItOnlyTells) {
  open_archive({{"A", "1"}});
  open_archive("C:\\program");
  new_messages();
  EXPECT_EQ(save(), saved);
  EXPECT_FALSE(exists("C:\\shplist.txt"));
}

}  // namespace
}  // namespace ostrane
