#include "progress/progress.h"

#include "forms/form3.h"

namespace ostrane {

void set_bars_visible(bool shown) {
  Form3.ProgressBar1.Visible = shown;
  Form3.ProgressBar2.Visible = shown;
  Form3.Label1.Visible = shown;
  Form3.Label2.Visible = shown;
}

void show_progress(const char* caption) {
  Form3.Visible = true;
  Form3.Caption = caption;
  set_bars_visible(true);
}

void hide_progress(const char* caption) {
  set_bars_visible(false);
  Form3.Caption = caption;
  Form3.Visible = false;
}

void refresh_progress() { Form3.Refresh(); }

void show_progress_text(const std::string& text) {
  Form3.message.Caption = text;
  Form3.Refresh();
}

void set_total_range(std::int64_t max) {
  Form3.ProgressBar2.Max = static_cast<float>(max);
  Form3.ProgressBar2.Min = 0;
}

void set_file_range(std::int32_t max) {
  Form3.ProgressBar1.Max = static_cast<float>(max);
  Form3.ProgressBar1.Min = 0;
}

void advance_total_bar(std::int16_t& tick, std::int16_t files_per_step, std::size_t index) {
  ++tick;
  if (tick < files_per_step) return;
  Form3.ProgressBar2.Value = static_cast<float>(index);
  tick = 0;
}

void move_file_bar(std::int32_t value) { Form3.ProgressBar1.Value = static_cast<float>(value); }

void show_working_message() {
  Form3.Caption = "This is just to let you know, I'm working...";
  show_progress_text(
      "It's only Visual Basic, so it takes some time.\r"
      "Working on the job...\r"
      "Have patience.................\r"
      "It's painting all these little dots that takes most of the time... \r"
      "Reading and unpacking the shp-file takes less than a 25%, the rest is Visual Basic "
      "overhead...");
}

void show_report(const std::string& caption, const std::string& text) {
  Form3.Visible = true;
  Form3.Caption = caption;
  Form3.message.Caption = text;
}

void close_report() {
  Form3.Visible = false;
  Form3.Caption = "";
  Form3.message.Caption = "";
}

}  // namespace ostrane
