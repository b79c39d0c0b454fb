#include "platform/application.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using main_window_test = tool_test;

TEST_F(main_window_test, StartsWithItsDefaults) {
  EXPECT_TRUE(Form1.Visible());
  EXPECT_EQ(Form1.Caption() + Form1.Text4.Text() + Form1.Text5.Text(),
            "Ostrane.dat-tool - v2r1m010300");
  EXPECT_FALSE(Form1.Text6.Visible() || Form1.Timer1.Enabled());
  EXPECT_EQ(Form1.s16_image.loaded(), 13);
  EXPECT_TRUE(Form1.mnu_open.Enabled() && Form1.mnu_make.Enabled() && Form1.mnu_exit.Enabled());
  EXPECT_FALSE(Form1.mnu_ext.Enabled() || Form1.mnu_save.Enabled() ||
               Form1.mnu_read_filelist.Enabled());
  EXPECT_EQ(tool_state.colour_table[16], platform::rgb(0xF4, 0xF4, 0x9C));
  EXPECT_EQ(tool_state.colour_table[255], platform::rgb(0xFC, 0x7C, 0x7C));
}

TEST_F(main_window_test, ADriveCThatFailsAtTheStartIsNoMatterForAMessage) {
  std::filesystem::remove_all(root / "c");
  begin("D:\\");
  user::click(Form1.mnu_open);
  EXPECT_EQ(new_messages(), std::vector<std::string>{});
  EXPECT_EQ(Form2.Dir1.Path() + Form2.File1.Path(), "D:\\D:\\");
}

// By its outer size, the last good one of which stays.
TEST_F(main_window_test, LaysItsControlsOut) {
  const struct {
    std::int32_t width, height, frame_width, frame_height;
  } cases[] = {
      {9555, 7395, 7455, 6570}, {12000, 9000, 9900, 8175}, {2500, 9000, 9900, 8175},
      {2501, 1900, 401, 8175},  {2501, 1901, 401, 1076},   {300, 300, 401, 1076},
  };
  for (const auto& c : cases) {
    user::resize(Form1, c.width - 225, c.height - 705);
    EXPECT_EQ(Form1.Frame1.Width(), c.frame_width) << c.width;
    EXPECT_EQ(Form1.Frame1.Height(), c.frame_height) << c.height;
    EXPECT_EQ(Form1.List1.Height(), c.frame_height - 600);
    EXPECT_EQ(Form1.Text6.Width(), c.frame_width - 300);
    EXPECT_EQ(Form1.Text6.Height(), c.frame_height - 975);
  }
}

TEST_F(main_window_test, ChecksTheMostIconsAndThePaceWhenTheFocusLeaves) {
  const struct {
    const char* typed;
    const char* as_most_icons;
    std::int16_t most_icons;
    const char* as_pace;
  } cases[] = {
      {"12.", "12.", 12, "12"},      {"abc", "12", 12, "10"},       {"", "12", 12, "10"},
      {".5", ".5", 0, ".5"},         {"1.5", "1.5", 2, "1."},       {"2.5", "2.5", 2, "2."},
      {"-5", "-5", -5, "-5"},        {"3e4", "3e4", 30000, "10"},   {"4e4", "30000", 30000, "10"},
      {"9e9", "30000", 30000, "10"}, {"1,0", "30000", 30000, "10"},
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

TEST_F(main_window_test, EndsAtOnceByTheWindowOrTheMenuUnlessDisabled) {
  user::click(Form1.mnu_open);
  user::close(Form1);
  user::close(Form2);
  EXPECT_FALSE(platform::process_ended());
  EXPECT_TRUE(Form2.Visible());
  user::click(Form2.Command2);
  user::close(Form1);
  EXPECT_TRUE(platform::process_ended());
  begin();
  user::click(Form1.mnu_exit);
  EXPECT_TRUE(platform::process_ended());
  user::click(Form1.mnu_open);
  EXPECT_FALSE(Form2.Visible());
}

}  // namespace
}  // namespace ostrane
