#include "icon_fixture.h"

namespace ostrane {
namespace {

class motion_test : public icon_test {
 protected:
  // The number on show, where the slots stand, and what the buttons and the timer are ready for.
  static std::string state() {
    std::string text = Form1.Text3.Text() + ":" + places();
    if (Form1.Timer1.Enabled()) text += " moving";
    if (Form1.Command3.Enabled()) text += " back";
    if (Form1.Command4.Enabled()) text += " on";
    return text;
  }

  struct step {
    const char* does;  // a letter an action
    const char* state;
  };
  static void follow(std::initializer_list<step> steps) {
    std::string done;
    for (const step& s : steps) {
      for (const char* action = s.does; *action != '\0'; ++action) {
        if (*action == 'm') user::click(Form1.Command5);
        if (*action == 't') user::tick(Form1.Timer1);
        if (*action == '<') user::click(Form1.Command3);
        if (*action == '>') user::click(Form1.Command4);
        if (*action == 'n') user::click(Form1.Command6);
      }
      done += s.does;
      EXPECT_EQ(state(), s.state) << done;
    }
  }
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

TEST_F(motion_test, ShowsOneSlotAfterTheOtherAndStepsThroughTheStack) {
  show({plain_icons(3, 1, 1)});
  Form1.Command4.Enabled = true;
  follow({{">", " 1 -  3: 200,800 260,800 320,800 on"},
          {"m", " 1 -  3: moving"},
          {"t", " 1: 200,800 moving"},
          {"tt", " 3: 200,800 moving"},
          {"t", " 3: 200,800 back on"},
          {">", " 3: 200,800 back on"},
          {"<", "2: 200,800 back on"},
          {"<<", "1: 200,800 back on"},
          {">", "2: 200,800 back on"}});
  EXPECT_EQ(view(), "3:2: 2=1");
}

TEST_F(motion_test, LeavesTheLastSlotOutOfASeriesThatStoppedShort) {
  user::type(Form1.Text5, "3");
  show({plain_icons(9, 1, 1)});
  follow({{"nm", " 4 -  6: 320,800 moving"},
          {"t", " 4: 200,800 320,800 moving"},
          {"tt", " 5: 200,800 320,800 back on"},
          {">", "6: 320,800 back on"}});
}

// A running motion must not walk into what is shown next, nor past the loaded slots.
TEST_F(motion_test, EndsWithTheSeriesThatItRunsOn) {
  show({plain_icons(40, 1, 1), plain_icons(2, 1, 1)});
  follow({{"mtttttttttttttttttttttttttttttt", " 30: 200,800 moving"}});
  click_row("F2.SHP");
  follow({{"ttt", " 1 -  2: 200,800 260,800"}});
}

class report_test : public icon_test {
 protected:
  static void report(std::int32_t index) { user::double_click(Form1.s16_image, index); }
};

TEST_F(report_test, TellsTheNumbersOfAnIcon) {
  user::type(Form1.Text5, "2");
  std::vector<shp_icon> icons = plain_icons(4, 1, 1);
  icons[3].head = {9, 63, -2, 3, 40, 8};
  show({icons});
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
            "SHP-Startpos in Ostrane.dat :  1100\r"
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
  const auto answered = [] {
    std::string numbers;
    for (const std::int32_t index : {0, 1, 2, 3, 12}) {
      report(index);
      if (Form3.Visible()) numbers += " " + std::to_string(index);
      Form3.Visible = false;
    }
    return numbers;
  };
  EXPECT_EQ(answered(), " 1 2");
  click_row("N.TXT");
  EXPECT_EQ(answered(), "");
}

}  // namespace
}  // namespace ostrane
