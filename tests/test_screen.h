#pragma once

#include "forms_layer/screen.h"
#include "icon_fixture.h"

namespace ostrane {

// A screen that paints nothing and records what a job shows. Its user gives the same answers each
// time.
struct test_screen : forms_layer::screen {
  test_screen() { forms_layer::attach_screen(this); }
  ~test_screen() override { forms_layer::attach_screen(nullptr); }

  std::size_t item = 0;  // of a menu
  fs::path file;         // to save; empty for none
  std::size_t kind = 0;  // of that file
  fs::path folder;       // to write to; empty for none
  fs::path dropped_in;   // where dragged files are dropped; nowhere if empty

  std::string seen;  // "+" or "-" for each item, proposed names, and copied pictures

  // Per Refresh of Form3 and per message box: the visible windows and the text. Per Refresh of
  // Form1: Text2 and Text3. When the bars are hidden: the visible windows. Per focus change: the
  // name of the form.
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
    const bool is_hidden = what == forms_layer::property_id::visible && !changed.Visible();
    if (is_hidden && bar == &Form3.ProgressBar1) log.push_back(visible_windows() + "hides bars");
    if (what != forms_layer::property_id::range || bar->Value() == last_[bar]) return;
    last_[bar] = bar->Value();
    moves += bar == &Form3.ProgressBar1 ? " 1:" : " 2:";
    moves += std::to_string(std::lround(bar->Value()));
  }
  void message_box(const std::string& title, const std::string& text) override {
    log.push_back(visible_windows() + text);
    screen::message_box(title, text);
  }

  void form_changed(forms_layer::form& changed, forms_layer::property_id what) override {
    if (what == forms_layer::property_id::focus) log.push_back(changed.designed.name);
  }

  forms_layer::menu_item* pick_item(forms_layer::context_menu& opened,
                                    forms_layer::screen_point) override {
    for (const auto* offered : opened.items) seen += offered->Enabled() ? "+" : "-";
    return opened.items.at(item);
  }
  forms_layer::save_answer ask_save_path(const forms_layer::save_question& question) override {
    seen += " " + question.stem + question.kinds.at(kind).ending;
    return {file, kind};
  }
  fs::path ask_folder(const std::string&) override { return folder; }
  void drag_files(const std::vector<fs::path>&, const forms_layer::file_writer& write) override {
    if (!dropped_in.empty()) write(dropped_in);
  }
  void copy_picture(const forms_layer::picture_box& shown) override {
    seen += " copied " + std::to_string(forms_layer::blue_of(shown.pixel(0, 0)));
  }

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
