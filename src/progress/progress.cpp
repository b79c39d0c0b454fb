#include "progress/progress.h"

#include "forms/form3.h"

namespace ostrane {

void show_bars(bool shown) {
  Form3.ProgressBar1.Visible = shown;
  Form3.ProgressBar2.Visible = shown;
  Form3.Label1.Visible = shown;
  Form3.Label2.Visible = shown;
}

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

void move_total_bar(std::int16_t& tick, std::int16_t files_per_step, std::size_t index) {
  ++tick;
  if (tick < files_per_step) return;
  Form3.ProgressBar2.Value = static_cast<float>(index);
  tick = 0;
}

void move_file_bar(std::int32_t value) { Form3.ProgressBar1.Value = static_cast<float>(value); }

}  // namespace ostrane
