#include "platform/events.h"
#include "platform/file_error.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using platform::picture_box;

class forms_layer_test : public tool_test {
 protected:
  picture_box& box() { return Form1.s16_image(1); }
  // A box of 4 by 3 pixels to draw on.
  void make_small() {
    box().Width = 15 * 6;
    box().Height = 15 * 5;
  }
};

TEST_F(forms_layer_test, APictureClipsToItsDrawingArea) {
  make_small();
  ASSERT_EQ(box().columns(), 4);
  ASSERT_EQ(box().rows(), 3);
  box().Line(-5, 0, 2, 0, 7);
  box().Line(3, 2, 2000000000, 2, 8);
  box().Line(0, 3, 4, 3, 9);
  box().Line(2, 1, 2, 1, 9);
  for (const auto& [x, y] : {std::pair{-1, 1}, {4, 1}, {1, -1}, {1, 3}}) box().PSet(x, y, 9);
  box().PSet(3, 1, 5);
  const std::uint32_t none = picture_box::unset;
  const std::uint32_t expected[3][4] = {
      {7, 7, none, none}, {none, none, none, 5}, {none, none, none, 8}};
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 4; ++x) EXPECT_EQ(box().pixel(x, y), expected[y][x]) << x << "," << y;
  }
}

TEST_F(forms_layer_test, APictureStaysUntilItIsClearedOrRecoloured) {
  make_small();
  const auto painted = [&] { return box().pixel(1, 1) != picture_box::unset; };
  box().PSet(1, 1, 3);
  box().Visible = true;
  box().Visible = false;
  box().Move(1000, 2000);
  EXPECT_TRUE(painted());
  box().Cls();
  EXPECT_FALSE(painted());
  box().PSet(1, 1, 3);
  box().BackColor = box().BackColor();
  EXPECT_FALSE(painted());
}

TEST_F(forms_layer_test, ABarShowsAnyThreeNumbers) {
  const struct {
    float min, max, value;
    double filled;
  } cases[] = {{0, 100, 25, .25}, {0, 0, 0, 0},   {0, -5, 3, 0},
               {0, 10, 20, 1},    {10, 20, 5, 0}, {5, 5, 7, 0}};
  for (const auto& c : cases) {
    Form3.ProgressBar1.Min = c.min;
    Form3.ProgressBar1.Max = c.max;
    Form3.ProgressBar1.Value = c.value;
    EXPECT_DOUBLE_EQ(Form3.ProgressBar1.filled(), c.filled) << c.min << " " << c.max;
  }
}

// What arrives while a handler runs, or while a message box stands in it, must not run inside it.
TEST_F(forms_layer_test, EventsComeOneAtATime) {
  std::string order;
  Form1.Command5.Click = [&] {
    order += "(";
    platform::message_box("wait");
    order += ")";
  };
  Form1.Command6.Click = [&] { order += "6"; };
  Form1.Timer1.Timer = [&] { order += "t"; };
  Form1.Timer1.Enabled = true;
  platform::on_message_box([&](const std::string&) {
    user::tick(Form1.Timer1);
    user::click(Form1.Command6);
    user::tick(Form1.Timer1);
    order += "box";
  });
  user::click(Form1.Command5);
  EXPECT_EQ(order, "(box)t6");
  user::click(Form1.Command6);
  EXPECT_EQ(order, "(box)t66");
}

TEST_F(forms_layer_test, AnErrorThatLeavesAHandlerIsToldAndTheNextEventRuns) {
  int clicks = 0;
  Form1.Command5.Click = [&] {
    ++clicks;
    throw platform::file_error{platform::file_error_number::device_error, "the disk is gone"};
  };
  user::click(Form1.Command5);
  user::click(Form1.Command5);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(new_messages(), (std::vector<std::string>{"the disk is gone", "the disk is gone"}));
}

TEST_F(forms_layer_test, WhatIsDisabledOrHiddenTakesNoInput) {
  int clicks = 0;
  Form1.Command6.Click = [&] { ++clicks; };
  const auto try_with = [&](auto& property) {
    property = false;
    user::click(Form1.Command6);
    property = true;
    return clicks;
  };
  EXPECT_EQ(try_with(Form1.Command6.Enabled), 0);
  EXPECT_EQ(try_with(Form1.Command6.Visible), 0);
  EXPECT_EQ(try_with(Form1.Frame1.Visible), 0);
  EXPECT_EQ(try_with(Form1.Enabled), 0);
  EXPECT_EQ(try_with(Form1.Visible), 0);
  user::click(Form1.Command6);
  EXPECT_EQ(clicks, 1);
  Form1.Enabled = false;
  user::type(Form1.Text5, "7");
  EXPECT_EQ(Form1.Text5.Text(), "300");
}

TEST_F(forms_layer_test, ChangeComesOnlyWithAnotherValue) {
  make_folder("C:\\one");
  int folders = 0;
  int drives = 0;
  user::click(Form1.mnu_open);
  Form2.Dir1.Change = [&] { ++folders; };
  Form2.Drive1.Change = [&] { ++drives; };
  for (const char* path : {"C:\\one", "c:\\ONE\\", "C:\\", "C:\\."}) Form2.Dir1.Path = path;
  for (const char* drive : {"C", "c: [test]", "D", "d:\\x"}) Form2.Drive1.Drive = drive;
  EXPECT_EQ(folders, 3);  // the case of a folder is a part of its path
  EXPECT_EQ(drives, 1);
}

}  // namespace
}  // namespace ostrane
