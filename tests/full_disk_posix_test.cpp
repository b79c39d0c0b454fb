#include "full_disk.h"

#include "tool_fixture.h"

namespace ostrane {
namespace {

using texts = std::vector<std::string>;
using files = std::map<std::string, std::string>;
using full_disk_test = tool_test;

TEST_F(full_disk_test, StopsAnExtractionWithTheNameOfTheFile) {
  write("D:\\OLD.TXT", "0");
  open_archive({{"A.TXT", "a"}, {"BIG.SHP", some_bytes(3000000)}, {"OLD.TXT", "new"}});
  user::click(Form1.mnu_ext);
  user::type(Form4.Text1, "D:\\");
  {
    const full_disk disk;
    user::click(Form4.Command2);
  }
  EXPECT_TRUE(new_messages().front().starts_with(
      "The extraction was stopped. D:\\BIG.SHP cannot be written: "));
  EXPECT_EQ(files_in("D:\\"), (files{{"A.TXT", "a"}, {"OLD.TXT", "0"}}));
  EXPECT_TRUE(Form4.Visible() && !Form3.Visible());
}

TEST_F(full_disk_test, LeavesTheOldArchiveToAFailedBuild) {
  write("D:\\big.txt", some_bytes(2500000));
  write("D:\\ostrane.dat", "the old one");
  user::click(Form1.mnu_make);
  user::type(Form5.Text1, "D:\\");
  Form5.Dir1.Path = "D:\\";
  {
    const full_disk disk;
    user::click(Form5.Command1);
  }
  EXPECT_TRUE(new_messages().front().starts_with("D:\\OSTRANE.DAT cannot be written: "));
  EXPECT_EQ(names_in("D:\\"), (texts{"big.txt", "ostrane.dat"}));
  EXPECT_EQ(read("D:\\ostrane.dat"), "the old one");
}

}  // namespace
}  // namespace ostrane
