#pragma once

#include "forms_layer/screen.h"
#include "tool_fixture.h"

namespace ostrane {

// A screen that paints nothing and records what a job shows.
class recording_screen : public forms_layer::screen {
 public:
  recording_screen() { forms_layer::attach_screen(this); }
  ~recording_screen() override { forms_layer::attach_screen(nullptr); }

  // Per Refresh of Form3 and per message box: the visible windows and the text. Per Refresh of
  // Form1: Text2 and Text3. Per focus change: the name of the form.
  texts log;
  std::string moves;  // of the bars: " bar:value" each

  // Sets the bars to a value that no job uses.
  void reset_bars() {
    for (auto* bar : {&Form3.ProgressBar1, &Form3.ProgressBar2}) bar->Value = -1;
    moves.clear();
  }

  void refresh(forms_layer::form& shown) override {
    if (&shown == &Form1) log.push_back(Form1.Text2.Text() + ":" + Form1.Text3.Text());
    if (&shown != &Form3) return;
    log.push_back(visible_windows() + Form3.Caption() + "|" + Form3.message.Caption());
  }
  // A change of the range only is not a move.
  void control_changed(forms_layer::control& changed, forms_layer::property_id what) override {
    const auto* bar = dynamic_cast<forms_layer::progress_bar*>(&changed);
    if (what != forms_layer::property_id::range || bar->Value() == last_[bar]) return;
    last_[bar] = bar->Value();
    moves += bar == &Form3.ProgressBar1 ? " 1:" : " 2:";
    moves += std::to_string(std::lround(bar->Value()));
  }
  void message_box(const std::string&, const std::string& text) override {
    log.push_back(visible_windows() + text);
  }

  void form_changed(forms_layer::form& changed, forms_layer::property_id what) override {
    if (what == forms_layer::property_id::focus) log.push_back(changed.designed.name);
  }

 private:
  static std::string visible_windows() {
    std::string windows = Form1.Visible() ? "main " : "";
    if (Form4.Visible() || Form5.Visible()) windows += "dialog ";
    if (Form3.Visible()) windows += "progress ";
    if (Form3.ProgressBar1.Visible()) windows += "bars ";
    return windows;
  }

  std::map<const forms_layer::progress_bar*, float> last_;
};

}  // namespace ostrane
