#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/screen.h"
#include "tool_fixture.h"

namespace ostrane {

// A screen that paints nothing and keeps what it was told, while it lives.
class recording_screen : public platform::screen {
 public:
  recording_screen() { platform::attach_screen(this); }
  ~recording_screen() override { platform::attach_screen(nullptr); }

  std::vector<std::string> texts;     // of `message`, at each Refresh of `Form3`
  std::vector<float> values_1;        // that `ProgressBar1.Value` went to
  std::vector<float> values_2;        // that `ProgressBar2.Value` went to
  std::vector<std::string> messages;  // of message boxes
  std::function<void()> at_refresh;   // called at each Refresh of `Form3`
  std::function<void()> at_message;   // called while a message box stands

  // Forgets the values; the bar stands at one that no job gives it.
  void begin_bars() {
    for (auto* bar : {&Form3.ProgressBar1, &Form3.ProgressBar2}) bar->Value = -1;
    values_1 = values_2 = {};
  }

  void refresh(platform::form& shown) override {
    if (&shown != &Form3) return;
    texts.push_back(Form3.message.Caption());
    if (at_refresh) at_refresh();
  }
  void control_changed(platform::control& changed, platform::aspect what) override {
    if (what != platform::aspect::range) return;
    if (&changed == &Form3.ProgressBar1) keep(values_1, Form3.ProgressBar1);
    if (&changed == &Form3.ProgressBar2) keep(values_2, Form3.ProgressBar2);
  }
  void message_box(const std::string&, const std::string& text) override {
    messages.push_back(text);
    if (at_message) at_message();
  }

  void form_changed(platform::form&, platform::aspect) override {}
  void menu_changed(platform::form&, platform::menu_item&) override {}
  void timer_changed(platform::timer&) override {}
  void refresh(platform::control&) override {}
  void end_process() override {}

 private:
  // A change of the range alone leaves the value as it was kept last.
  static void keep(std::vector<float>& values, const platform::progress_bar& bar) {
    const float last = values.empty() ? -1 : values.back();
    if (bar.Value() != last) values.push_back(bar.Value());
  }
};

// The progress window as it is in a job, or as a job leaves it.
inline void expect_progress(const char* caption, bool working) {
  EXPECT_EQ(Form3.Caption(), caption);
  EXPECT_EQ(Form3.Visible(), working);
  const platform::control* shown[] = {&Form3.ProgressBar1, &Form3.ProgressBar2, &Form3.Label1,
                                      &Form3.Label2};
  for (const platform::control* control : shown) EXPECT_EQ(control->Visible(), working);
}

}  // namespace ostrane
