#include "icon_fixture.h"

using namespace ostrane;

struct motion_test : icon_test {
  // Text3, the positions of the visible slots, the timer and the buttons.
  static std::string state() {
    return Form1.Text3.Text() + ":" + positions() + (Form1.Timer1.Enabled() ? " moving" : "") +
           (Form1.Command3.Enabled() ? " back" : "") + (Form1.Command4.Enabled() ? " on" : "");
  }

  // Actions of one letter each, and the state after them.
  static void run_steps(const std::vector<std::pair<std::string, std::string>>& steps) {
    const std::map<char, std::function<void()>> acts = {
        {'m', clicking(Form1.Command5)}, {'l', [] { user::shift_click(Form1.Command5); }},
        {'<', clicking(Form1.Command3)}, {'t', [] { user::tick(Form1.Timer1); }},
        {'>', clicking(Form1.Command4)}, {'n', clicking(Form1.Command6)}};
    std::string done;
    for (const auto& [actions, expected] : steps) {
      for (const char action : actions) acts.at(action)();
      EXPECT_EQ(state(), expected) << (done += actions);
    }
  }
};

TEST_F(motion_test, ShowsTheSlotsInTurnAndStepsThroughThem) {
  show({plain_icons(3, 1, 1)});
  for (const auto& [typed, milliseconds] : {std::pair{"-3", 100}, {".1", 1}, {"99", 990}}) {
    user::type(Form1.Text4, typed);
    user::click(Form1.Command5);
    EXPECT_EQ(Form1.Timer1.Interval(), milliseconds);
  }
  show({plain_icons(3, 1, 1)});
  Form1.Command4.Enabled = true;
  run_steps({{">", " 1 -  3: 200,800 260,800 320,800 on"},
             {"m", " 1 -  3: moving"},
             {"t", " 1: 200,800 moving"},
             {"tt", " 3: 200,800 moving"},
             {"t", " 3: 200,800 back on"},
             {">", " 3: 200,800 back on"},
             {"<", "2: 200,800 back on"},
             {"<<", "1: 200,800 back on"},
             {">", "2: 200,800 back on"},
             {"lttt", " 3: 200,800 moving"},
             {"t", " 1: 200,800 moving"},
             {"tttt", " 2: 200,800 moving"},
             {"l", " 2: 200,800 back on"},
             {"lttt", " 3: 200,800 moving"},
             {"m", " 3: 200,800 back on"},
             {"<", "2: 200,800 back on"}});
  EXPECT_EQ(view(), "3:2: 2=1");
  run_steps({{"m", "2: moving"}, {"t", " 1: 200,800 moving"}, {"ttt", " 3: 200,800 back on"}});
}

TEST_F(motion_test, OmitsTheLastSlotIfIconsRemain) {
  user::type(Form1.Text5, "3");
  show({plain_icons(9, 1, 1)});
  run_steps({{"nm", " 4 -  6: 320,800 moving"},
             {"t", " 4: 200,800 320,800 moving"},
             {"tt", " 5: 200,800 320,800 back on"},
             {">", "6: 320,800 back on"},
             {"n", " 7 -  9: 200,800 260,800 320,800"}});
}

// Neither a motion nor the buttons step through slots of another series. A motion without slots
// ends at its first tick.
TEST_F(motion_test, EndsWithItsSeries) {
  const std::string nine = shp_file(plain_icons(9, 1, 1));
  open_archive({{"A.SHP", nine}, {"B.SHP", with_number(nine, 4, -5)}});
  const std::pair<const char*, std::string> cases[] = {{"A.SHP", " 1 -  1: 200,800"},
                                                       {"B.SHP", " 1 -  0:"}};
  for (const auto& [row, grid] : cases) {
    user::type(Form1.Text5, "9");
    click_row("A.SHP");
    run_steps({{"mttttt", " 5: 200,800 moving"}});
    user::type(Form1.Text5, "1");
    click_row(row);
    run_steps({{"t", grid}, {"m", grid + " moving"}, {"t<>", grid + " back on"}});
  }
}

using report_test = icon_test;

TEST_F(report_test, ShowsTheNumbersOfAnIcon) {
  const shp_icon reported = {{9, 63, -2, 3, 40, 8}, plain_icon(1, 1, 1).stream};
  user::type(Form1.Text5, "1");
  show({{plain_icon(1, 1, 1), blank_icon(2, 2), reported, refused_icon(1, 1)}});
  user::type(Form1.Text5, "9");
  user::click(Form1.Command6);
  const auto reports = [] {
    texts shown;
    for (const std::int32_t slot : {0, 1, 2, 3, 12}) {
      user::double_click(Form1.s16_image, slot);
      if (Form3.Visible()) shown.push_back(Form3.Caption() + Form3.message.Caption());
      user::click(Form3.message);
    }
    return shown;
  };
  EXPECT_EQ(reports().size(), 2U);
  EXPECT_EQ(reports().back(),
            "Icon-data for picture number:  2, on this screen."
            "Number of cols(0-#)         :  63\rNumber of rows(0-#)         :  9\r"
            "First column with data      : -2\rLast column with data       :  40\r"
            "First row with data         :  3\rLast row with data          :  8\r"
            "\rIcon-number in shp-file     :  3\rSHP-Startpos in Ostrane.dat :  1100\r"
            "\rClick >HERE< to make this message disappear...");
  click_row("N.TXT");
  EXPECT_EQ(reports(), texts{});
}
