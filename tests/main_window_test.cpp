#include "forms_layer/application.h"
#include "tool_fixture.h"

using namespace ostrane;

using main_window_test = tool_test;

// A missing drive C: gives no message. The window does not close while a dialog is open.
TEST_F(main_window_test, StartsAndEndsWithAndWithoutDriveC) {
  for (const bool c_exists : {true, false}) {
    restart("D:\\");
    EXPECT_EQ(Form1.Caption(), "Ostrane.dat-tool - v2r1m0");
    EXPECT_EQ(Form1.Text1.Text() + Form1.Text4.Text() + Form1.Text5.Text(), "10300");
    EXPECT_FALSE(Form1.Text6.Visible() || Form1.Timer1.Enabled() || Form1.mnu_ext.Enabled() ||
                 Form1.mnu_save.Enabled() || Form1.mnu_read_filelist.Enabled());
    EXPECT_EQ(Form1.s16_image.loaded(), 1 + 12);
    user::click(Form1.mnu_open);
    EXPECT_EQ(new_messages(), texts{});
    EXPECT_EQ(Form2.Dir1.Path() + Form2.File1.Path(), c_exists ? "C:\\C:\\" : "D:\\D:\\");
    user::close(Form1);
    user::click(Form1.mnu_exit);
    EXPECT_FALSE(forms_layer::process_ended());
    user::click(Form2.Command2);
    c_exists ? user::close(Form1) : user::click(Form1.mnu_exit);
    EXPECT_TRUE(forms_layer::process_ended());
    fs::remove_all(root / "c");
  }
}

// Each axis has its own limit; from one twip above it the controls are resized with the
// window.
TEST_F(main_window_test, LaysOutItsControlsDownToAMinimumSize) {
  const std::tuple<std::int32_t, std::int32_t, std::string> cases[] = {
      {9330 + 225, 6690 + 705, "7455x6570 1695x5970 7155x5595 "},
      {2501, 1900, "401x6570 1695x5970 101x5595 "},
      {2500, 1901, "401x1076 1695x476 101x101 "},
      {10100, 8000, "8000x7175 1695x6575 7700x6200 "}};
  const auto size = [](const forms_layer::control& sized) {
    return std::to_string(sized.Width()) + "x" + std::to_string(sized.Height()) + " ";
  };
  for (const auto& [width, height, sizes] : cases) {  // outer size
    user::resize(Form1, width - 225, height - 705);
    EXPECT_EQ(size(Form1.Frame1) + size(Form1.List1) + size(Form1.Text6), sizes);
  }
}

// The text typed into both fields, then Text5, max_icons and Text4.
TEST_F(main_window_test, ValidatesMaxIconsAndIntervalOnLostFocus) {
  const std::tuple<const char*, const char*, std::int16_t, const char*> cases[] = {
      {"12.", "12.", 12, "12"},      {"abc", "12", 12, "10"},
      {"", "12", 12, "10"},          {".5", ".5", 0, ".5"},
      {"1.5", "1.5", 2, "1."},       {"2.5", "2.5", 2, "2."},
      {"-5", "-5", -5, "-5"},        {"3e4", "3e4", 30000, "10"},
      {"4e4", "30000", 30000, "10"}, {"9e999", "30000", 30000, "10"},
      {"1,0", "30000", 30000, "10"}, {"1e-999", "30000", 30000, "10"},
      {"0x1", "30000", 30000, "10"}, {"inf", "30000", 30000, "10"}};
  for (const auto& [typed, text5, max_icons, text4] : cases) {
    for (forms_layer::text_box* field : {&Form1.Text4, &Form1.Text5}) {
      user::type(*field, "");
      user::type(*field, typed);
    }
    user::focus(&Form1.List1);
    EXPECT_EQ((texts{Form1.Text5.Text(), Form1.Text4.Text()}), (texts{text5, text4}));
    EXPECT_EQ(tool_state.max_icons, max_icons) << typed;
  }
  // What the tool wrote is longer than a user may type.
  for (const char* edit : {"3000", "34000"}) user::type(Form1.Text5, edit);
  EXPECT_EQ(Form1.Text5.Text(), "3000");
}
