#include <cstdlib>

#include "platform/application.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

class main_window_test : public tool_test {
 protected:
  // Sets the window's outer size in twips.
  static void resize(std::int32_t width, std::int32_t height) {
    user::resize(Form1, width - 225, height - 705);
  }
};

TEST_F(main_window_test, StartsWithItsDefaults) {
  EXPECT_TRUE(Form1.Visible());
  EXPECT_EQ(Form1.Caption(), "Ostrane.dat-tool - v2r1m0");
  EXPECT_EQ(Form1.Text4.Text() + Form1.Text5.Text(), "10300");
  EXPECT_FALSE(Form1.Text6.Visible() || Form1.Timer1.Enabled());
  EXPECT_EQ(Form1.s16_image.loaded(), 13);
  EXPECT_EQ(Form1.s16_image(12).ScaleMode(), 3);
  EXPECT_TRUE(Form1.mnu_open.Enabled() && Form1.mnu_make.Enabled() && Form1.mnu_exit.Enabled());
  EXPECT_FALSE(Form1.mnu_ext.Enabled() || Form1.mnu_save.Enabled() ||
               Form1.mnu_read_filelist.Enabled());
  EXPECT_EQ(Form2.Dir1.Path(), "C:\\");
  EXPECT_EQ(tool_state.colour_table[16], platform::rgb(0xF4, 0xF4, 0x9C));
  EXPECT_EQ(tool_state.colour_table[255], platform::rgb(0xFC, 0x7C, 0x7C));
  EXPECT_EQ(tool_state.icon_name_count, 1);
}

TEST_F(main_window_test, ADriveCThatFailsAtTheStartIsNoMatterForAMessage) {
  std::filesystem::remove_all(root / "c");
  begin("D:\\");
  EXPECT_EQ(new_messages(), std::vector<std::string>{});
  user::click(Form1.mnu_open);
  EXPECT_EQ(Form2.Dir1.Path(), "D:\\");
  EXPECT_EQ(Form2.File1.Path(), "D:\\");
  std::filesystem::create_directories(root / "c");
}

TEST_F(main_window_test, LaysItsControlsOutByTheOuterSize) {
  EXPECT_EQ(Form1.Frame1.Width(), 7455);
  EXPECT_EQ(Form1.Frame1.Height(), 6570);
  EXPECT_EQ(Form1.List1.Height(), 5970);
  EXPECT_EQ(Form1.Text6.Width(), 7155);
  EXPECT_EQ(Form1.Text6.Height(), 5595);
  const struct {
    std::int32_t width, height, frame_width, frame_height;
  } cases[] = {
      {12000, 9000, 9900, 8175}, {2500, 9000, 9900, 8175}, {2501, 1900, 401, 8175},
      {2501, 1901, 401, 1076},   {300, 300, 401, 1076},
  };
  for (const auto& c : cases) {
    resize(c.width, c.height);
    EXPECT_EQ(Form1.Frame1.Width(), c.frame_width) << c.width;
    EXPECT_EQ(Form1.Frame1.Height(), c.frame_height) << c.height;
    EXPECT_EQ(Form1.List1.Height(), c.frame_height - 600);
    EXPECT_EQ(Form1.Text6.Width(), c.frame_width - 300);
    EXPECT_EQ(Form1.Text6.Height(), c.frame_height - 975);
  }
  EXPECT_EQ(Form1.List1.Width(), 1695);
  EXPECT_EQ(Form1.Frame1.Left(), 1800);
}

TEST_F(main_window_test, ChecksTheMostIconsWhenTheFocusLeaves) {
  const struct {
    const char* typed;
    const char* shown;
    std::int16_t most;
  } cases[] = {
      {"12.", "12.", 12},      {"abc", "12", 12},       {"", "12", 12},
      {".5", ".5", 0},         {"1.5", "1.5", 2},       {"2.5", "2.5", 2},
      {"-5", "-5", -5},        {"3e4", "3e4", 30000},   {"4e4", "30000", 30000},
      {"9e9", "30000", 30000}, {"1,0", "30000", 30000},
  };
  for (const auto& c : cases) {
    user::type(Form1.Text5, c.typed);
    user::focus(&Form1.Text4);
    EXPECT_EQ(Form1.Text5.Text(), c.shown) << c.typed;
    EXPECT_EQ(tool_state.max_icons, c.most) << c.typed;
  }
}

TEST_F(main_window_test, ChecksThePaceWhenTheFocusLeaves) {
  for (const auto& [typed, shown] :
       {std::pair{"ab", "10"}, {"", "10"}, {"0", "0"}, {"-1", "-1"}, {"7", "7"}}) {
    user::type(Form1.Text4, typed);
    EXPECT_EQ(Form1.Text4.Text(), typed);
    user::focus(&Form1.List1);
    EXPECT_EQ(Form1.Text4.Text(), shown);
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
