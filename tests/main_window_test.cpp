#include "tool_fixture.h"

namespace ostrane {
namespace {

using main_window_test = tool_test;

TEST_F(main_window_test, ADriveCThatFailsAtTheStartIsNoMatterForAMessage) {
  fs::remove_all(root / "c");
  begin("D:\\");
  user::click(Form1.mnu_open);
  EXPECT_EQ(new_messages(), texts{});
  EXPECT_EQ(Form2.Dir1.Path() + Form2.File1.Path(), "D:\\D:\\");
}

TEST_F(main_window_test, ChecksTheMostIconsAndThePaceWhenTheFocusLeaves) {
  const struct {
    const char* typed;
    const char* as_most_icons;
    std::int16_t most_icons;
    const char* as_pace;
  } cases[] = {
      {"12.", "12.", 12, "12"},      {"abc", "12", 12, "10"},
      {"", "12", 12, "10"},          {".5", ".5", 0, ".5"},
      {"1.5", "1.5", 2, "1."},       {"2.5", "2.5", 2, "2."},
      {"-5", "-5", -5, "-5"},        {"3e4", "3e4", 30000, "10"},
      {"4e4", "30000", 30000, "10"}, {"9e999", "30000", 30000, "10"},
      {"1,0", "30000", 30000, "10"}, {"1e-999", "30000", 30000, "10"},
      {"0x1", "30000", 30000, "10"}, {"inf", "30000", 30000, "10"},
  };
  for (const auto& c : cases) {
    user::type(Form1.Text5, c.typed);
    user::type(Form1.Text4, c.typed);
    user::focus(&Form1.List1);
    EXPECT_EQ(Form1.Text5.Text(), c.as_most_icons) << c.typed;
    EXPECT_EQ(tool_state.max_icons, c.most_icons) << c.typed;
    EXPECT_EQ(Form1.Text4.Text(), c.as_pace) << c.typed;
  }
}

}  // namespace
}  // namespace ostrane
