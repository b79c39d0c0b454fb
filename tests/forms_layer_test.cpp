#include "tool_fixture.h"

using namespace ostrane;

using forms_layer_test = tool_test;

// Events that arrive during a handler or its message box run after it. An error that leaves a
// handler is shown and stops nothing else.
TEST_F(forms_layer_test, HandlersRunOneAtATime) {
  std::string order;
  Form1.Command5.Click = [&] {
    order += "(";
    forms_layer::message_box("wait");
    order += ")";
  };
  Form1.Command6.Click = [&] {
    order += "6";
    throw std::runtime_error("gone");
  };
  Form1.Timer1.Timer = [&] { order += "t"; };
  Form1.Timer1.Enabled = true;
  forms_layer::on_message_box([&](const std::string& text) {
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
  // There is no memory for the message either.
  forms_layer::on_message_box([](const std::string&) { throw std::bad_alloc(); });
  EXPECT_NO_THROW(user::click(Form1.Command6));
}

TEST_F(forms_layer_test, DisabledAndHiddenControlsIgnoreInput) {
  int clicks = 0;
  Form1.Command6.Click = [&] { ++clicks; };
  const auto click_without_each = [](auto&... properties) {
    ((properties = false, user::click(Form1.Command6), properties = true), ...);
  };
  click_without_each(Form1.Enabled, Form1.Visible, Form1.Command6.Enabled, Form1.Command6.Visible,
                     Form1.Frame1.Visible);
  EXPECT_EQ(clicks, 0);
}
