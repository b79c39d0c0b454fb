#include "platform/events.h"
#include "platform/file_error.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using platform::picture_box;

struct forms_layer_test : tool_test {
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
  const auto click_without = [](auto& property) {
    property = false;
    user::click(Form1.Command6);
    property = true;
  };
  click_without(Form1.Enabled);
  click_without(Form1.Visible);
  click_without(Form1.Command6.Enabled);
  click_without(Form1.Command6.Visible);
  click_without(Form1.Frame1.Visible);
  EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace ostrane
