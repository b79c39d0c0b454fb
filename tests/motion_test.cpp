#include "icon_fixture.h"

namespace ostrane {
namespace {

struct motion_test : icon_test {
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

TEST_F(motion_test, ShowsOneSlotAfterTheOtherAndStepsThroughTheStack) {
  show({plain_icons(3, 1, 1)});
  for (const auto& [pace, milliseconds] : {std::pair{"-3", 100}, {".1", 1}, {"99", 990}}) {
    user::type(Form1.Text4, pace);
    user::click(Form1.Command5);
    EXPECT_EQ(Form1.Timer1.Interval(), milliseconds);
  }
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

using report_test = icon_test;

TEST_F(report_test, TellsTheNumbersOfAnIconOnShow) {
  std::vector<shp_icon> icons = {plain_icon(1, 1, 1), blank_icon(2, 2), plain_icon(1, 1, 1),
                                 refused_icon(1, 1)};
  icons[2].head = {9, 63, -2, 3, 40, 8};
  user::type(Form1.Text5, "1");
  show({icons});
  user::type(Form1.Text5, "9");
  user::click(Form1.Command6);
  const auto reports = [] {
    std::string told;
    for (const std::int32_t slot : {0, 1, 2, 3, 12}) {
      user::double_click(Form1.s16_image, slot);
      told += Form3.Visible() ? Form3.Caption() + Form3.message.Caption() : "\n";
      user::click(Form3.message);
    }
    std::erase_if(told, [](char c) { return c > ' ' && (c < '0' || c > '9'); });
    std::erase(told, ' ');
    return told;
  };
  EXPECT_EQ(reports(),
            "\n101\r01\r2\r1\r0\r1\r\r2\r1100\r\r2063\r09\r2\r40\r3\r8\r\r3\r1100\r\r\n\n");
  click_row("N.TXT");
  EXPECT_EQ(reports(), "\n\n\n\n\n");
}

}  // namespace
}  // namespace ostrane
