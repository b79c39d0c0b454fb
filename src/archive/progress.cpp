#include "archive/progress.h"

#include "forms/form3.h"

namespace ostrane {

namespace {

void show_bars(bool shown) {
  Form3.ProgressBar1.Visible = shown;
  Form3.ProgressBar2.Visible = shown;
  Form3.Label1.Visible = shown;
  Form3.Label2.Visible = shown;
}

}  // namespace

void show_progress(const char* caption) {
  Form3.Visible = true;
  Form3.Caption = caption;
  show_bars(true);
}

void hide_progress(const char* caption) {
  show_bars(false);
  Form3.Caption = caption;
  Form3.Visible = false;
}

void move_total_bar(std::int16_t& tick, std::int16_t files_a_step, std::size_t index) {
  ++tick;
  if (tick < files_a_step) return;
  Form3.ProgressBar2.Value = static_cast<float>(index);
  tick = 0;
}

}  // namespace ostrane
