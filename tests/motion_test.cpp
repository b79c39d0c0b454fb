#include "icon_fixture.h"

namespace ostrane {
namespace {

using slots = std::vector<std::int32_t>;

class motion_test : public icon_test {
 protected:
  static void tick(int times = 1) {
    for (int i = 0; i < times; ++i) user::tick(Form1.Timer1);
  }
  static bool can_step() { return Form1.Command3.Enabled() && Form1.Command4.Enabled(); }
};

TEST_F(motion_test, SetsThePace) {
  const struct {
    const char* pace;
    std::int32_t milliseconds;
  } cases[] = {{"10", 100}, {"0", 100}, {"-3", 100}, {".5", 5}, {"99", 990}, {".1", 1}, {"x", 100}};
  show({plain_icons(2, 1, 1)});
  for (const auto& c : cases) {
    user::type(Form1.Text4, c.pace);
    user::click(Form1.Command5);
    EXPECT_EQ(Form1.Timer1.Interval(), c.milliseconds) << c.pace;
  }
}

TEST_F(motion_test, ShowsOneSlotAfterTheOther) {
  show({plain_icons(3, 1, 1)});
  EXPECT_FALSE(can_step());
  user::click(Form1.Command5);
  EXPECT_TRUE(Form1.Timer1.Enabled());
  EXPECT_EQ(shown_slots(), slots{});
  for (std::int32_t frame = 1; frame <= 3; ++frame) {
    tick();
    EXPECT_EQ(shown_slots(), slots{frame});
    EXPECT_EQ(slot(frame).Left(), 200);
    EXPECT_EQ(slot(frame).Top(), 800);
    EXPECT_EQ(Form1.Text3.Text(), " " + std::to_string(frame));
    EXPECT_FALSE(can_step());
  }
  tick();
  EXPECT_FALSE(Form1.Timer1.Enabled());
  EXPECT_TRUE(can_step());
  EXPECT_EQ(shown_slots(), slots{3});
}

TEST_F(motion_test, StepsThroughTheStack) {
  show({plain_icons(3, 1, 1)});
  Form1.Command4.Enabled = true;
  user::click(Form1.Command4);
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  3");
  user::click(Form1.Command5);
  tick(4);
  user::click(Form1.Command4);
  EXPECT_EQ(Form1.Text3.Text(), " 3");
  user::click(Form1.Command3);
  EXPECT_EQ(shown_slots(), slots{2});
  EXPECT_EQ(Form1.Text3.Text(), "2");
  user::click(Form1.Command3);
  user::click(Form1.Command3);
  EXPECT_EQ(shown_slots(), slots{1});
  EXPECT_EQ(Form1.Text3.Text(), "1");
}

TEST_F(motion_test, LeavesTheLastSlotOutOfASeriesThatStoppedShort) {
  user::type(Form1.Text5, "3");
  show({plain_icons(9, 1, 1)});
  user::click(Form1.Command6);
  user::click(Form1.Command5);
  EXPECT_EQ(shown_slots(), slots{3});
  tick(3);
  EXPECT_EQ(shown_slots(), (slots{2, 3}));
  EXPECT_EQ(Form1.Text3.Text(), " 5");
  EXPECT_FALSE(Form1.Timer1.Enabled());
  user::click(Form1.Command4);
  EXPECT_EQ(shown_slots(), slots{3});
  EXPECT_EQ(slot(3).Left(), 200 + 2 * 60);
}

// A running motion must not walk into what is shown next, nor past the loaded slots.
TEST_F(motion_test, EndsWithTheSeriesThatItRunsOn) {
  show({plain_icons(40, 1, 1), plain_icons(2, 1, 1)});
  user::click(Form1.Command5);
  tick(30);
  click_row("F2.SHP");
  EXPECT_FALSE(Form1.Timer1.Enabled());
  tick(50);
  EXPECT_EQ(shown_slots(), (slots{1, 2}));
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  2");
}

class report_test : public icon_test {
 protected:
  void report(std::int32_t index) { user::double_click(Form1.s16_image, index); }
};

TEST_F(report_test, TellsTheNumbersOfAnIcon) {
  samples::shp_icon icon{.head = {.no_of_rows = 9,
                                  .no_of_cols = 63,
                                  .col_start = -2,
                                  .row_start = 3,
                                  .col_end = 40,
                                  .row_end = 8},
                         .stream = ""};
  user::type(Form1.Text5, "2");
  show({{plain_icon(1, 1, 1), plain_icon(1, 1, 1), plain_icon(1, 1, 1), icon}});
  user::click(Form1.Command6);
  report(2);
  EXPECT_TRUE(Form3.Visible());
  EXPECT_EQ(Form3.Caption(), "Icon-data for picture number:  2, on this screen.");
  EXPECT_EQ(Form3.message.Caption(),
            "Number of cols(0-#)         :  63\r"
            "Number of rows(0-#)         :  9\r"
            "First column with data      : -2\r"
            "Last column with data       :  40\r"
            "First row with data         :  3\r"
            "Last row with data          :  8\r"
            "\r"
            "Icon-number in shp-file     :  4\r"
            "SHP-Startpos in Ostrane.dat :  55\r"
            "\r"
            "Click >HERE< to make this message disappear...");
  EXPECT_FALSE(Form3.ProgressBar1.Visible());
  report(1);
  EXPECT_EQ(Form3.Caption(), "Icon-data for picture number:  1, on this screen.");
  user::click(Form3.message);
  EXPECT_FALSE(Form3.Visible());
  EXPECT_EQ(Form3.Caption() + Form3.message.Caption(), "");
}

TEST_F(report_test, AnswersOnlyForIconsOnShow) {
  show({{plain_icon(1, 1, 1), blank_icon(2, 2), refused_icon(1, 1)}});
  const struct {
    std::int32_t index;
    bool reported;
  } cases[] = {{0, false}, {1, true}, {2, true}, {3, false}, {12, false}};
  for (const auto& c : cases) {
    Form3.Visible = false;
    report(c.index);
    EXPECT_EQ(Form3.Visible(), c.reported) << c.index;
  }
  Form3.Visible = false;
  click_row("N.TXT");
  report(1);
  EXPECT_FALSE(Form3.Visible());
}

}  // namespace
}  // namespace ostrane
