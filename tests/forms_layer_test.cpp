#include "platform/events.h"
#include "platform/file_error.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using platform::picture_box;

class forms_layer_test : public tool_test {
 protected:
  // A box of 4 by 3 pixels to draw on.
  forms_layer_test() {
    box.Width = 15 * 6;
    box.Height = 15 * 5;
  }

  picture_box& box = Form1.s16_image(1);
};

TEST_F(forms_layer_test, APictureClipsToItsDrawingArea) {
  box.Line(-5, 0, 2, 0, 7);
  box.Line(3, 2, 2000000000, 2, 8);
  box.Line(0, 3, 4, 3, 9);
  box.Line(2, 1, 2, 1, 9);
  for (const auto& [x, y] : {std::pair{-1, 1}, {4, 1}, {1, -1}, {1, 3}}) box.PSet(x, y, 9);
  box.PSet(3, 1, 5);
  std::string cells;
  for (int y = 0; y < box.rows(); ++y) {
    for (int x = 0; x < box.columns(); ++x) {
      const platform::colour there = box.pixel(x, y);
      cells += there == picture_box::unset ? "." : std::to_string(there);
    }
    cells += "|";
  }
  EXPECT_EQ(cells, "77..|...5|...8|");
}

TEST_F(forms_layer_test, APictureStaysUntilItIsClearedOrRecoloured) {
  const auto stays_after = [&](const std::function<void()>& change) {
    box.PSet(1, 1, 3);
    change();
    return box.pixel(1, 1) != picture_box::unset;
  };
  EXPECT_TRUE(stays_after([&] { box.Visible = true; }));
  EXPECT_TRUE(stays_after([&] { box.Visible = false; }));
  EXPECT_TRUE(stays_after([&] { box.Move(1000, 2000); }));
  EXPECT_FALSE(stays_after([&] { box.Cls(); }));
  EXPECT_FALSE(stays_after([&] { box.BackColor = box.BackColor(); }));
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

// What arrives while a handler runs, or while a message box stands in it, must not run inside it,
// and an error that leaves a handler is told and keeps nothing from running.
TEST_F(forms_layer_test, EventsComeOneAtATime) {
  std::string order;
  Form1.Command5.Click = [&] {
    order += "(";
    platform::message_box("wait");
    order += ")";
  };
  Form1.Command6.Click = [&] {
    order += "6";
    throw platform::file_error{platform::file_error_number::device_error, "gone"};
  };
  Form1.Timer1.Timer = [&] { order += "t"; };
  Form1.Timer1.Enabled = true;
  platform::on_message_box([&](const std::string& text) {
    order += text;
    if (text != "wait") return;
    user::tick(Form1.Timer1);
    user::click(Form1.Command6);
    user::tick(Form1.Timer1);
    user::click(Form1.Command6);
  });
  user::click(Form1.Command5);
  EXPECT_EQ(order, "(wait)t6gone6gone");
  user::click(Form1.Command6);
  EXPECT_EQ(order, "(wait)t6gone6gone6gone");
}

TEST_F(forms_layer_test, WhatIsDisabledOrHiddenTakesNoInput) {
  int clicks = 0;
  Form1.Command6.Click = [&] { ++clicks; };
  const auto clicks_without = [&](auto& property) {
    property = false;
    user::click(Form1.Command6);
    user::type(Form1.Text5, "7");
    property = true;
    return clicks;
  };
  EXPECT_EQ(clicks_without(Form1.Enabled), 0);
  EXPECT_EQ(clicks_without(Form1.Visible), 0);
  EXPECT_EQ(Form1.Text5.Text(), "300");
  EXPECT_EQ(clicks_without(Form1.Command6.Enabled), 0);
  EXPECT_EQ(clicks_without(Form1.Command6.Visible), 0);
  EXPECT_EQ(clicks_without(Form1.Frame1.Visible), 0);
  user::click(Form1.Command6);
  EXPECT_EQ(clicks, 1);
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
