#pragma once

#include <functional>

#include "platform/screen.h"
#include "tool_fixture.h"

namespace ostrane {

// A screen that paints nothing and keeps what it was told of a job, while it lives.
class recording_screen : public platform::screen {
 public:
  recording_screen() { platform::attach_screen(this); }
  ~recording_screen() override { platform::attach_screen(nullptr); }

  texts told;         // by Form3 at each Refresh, and by message boxes, with the windows on show
  std::string moves;  // of the bars, each to a value
  std::function<void()> at_refresh = [] {};

  // The bars stand at a value that no job gives them.
  void begin_bars() {
    for (auto* bar : {&Form3.ProgressBar1, &Form3.ProgressBar2}) bar->Value = -1;
    moves.clear();
  }

  void refresh(platform::form& shown) override {
    if (&shown != &Form3) return;
    told.push_back(on_show() + Form3.Caption() + "|" + Form3.message.Caption());
    at_refresh();
  }
  // A change of the range alone leaves the value as it was told last.
  void control_changed(platform::control& changed, platform::aspect what) override {
    if (what != platform::aspect::range) return;
    for (const int number : {1, 2}) {
      const auto& bar = number == 1 ? Form3.ProgressBar1 : Form3.ProgressBar2;
      if (&changed != &bar || bar.Value() == last_[number]) continue;
      last_[number] = bar.Value();
      moves += " " + std::to_string(number) + ":" + std::to_string(std::lround(bar.Value()));
    }
  }
  void message_box(const std::string&, const std::string& text) override {
    told.push_back(on_show() + text);
  }

  void form_changed(platform::form&, platform::aspect) override {}
  void menu_changed(platform::form&, platform::menu_item&) override {}
  void timer_changed(platform::timer&) override {}
  void refresh(platform::control&) override {}
  void end_process() override {}

 private:
  static std::string on_show() {
    std::string windows = Form1.Visible() ? "main " : "";
    if (Form4.Visible() || Form5.Visible()) windows += "dialog ";
    if (Form3.Visible()) windows += "progress ";
    if (Form3.ProgressBar1.Visible()) windows += "bars ";
    return windows;
  }

  float last_[3] = {};
};

}  // namespace ostrane
