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

}  // namespace ostrane
