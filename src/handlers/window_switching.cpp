#include "handlers/window_switching.h"

#include "archive/index_reader.h"
#include "files/paths.h"
#include "forms/forms.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

void open_form2() {
  Form1.Enabled = false;
  Form2.Visible = true;
}

void open_form4() {
  Form4.Text1.Placeholder = files::full_path("\\");
  Form4.Visible = true;
  Form1.Visible = false;
}

void open_form5() {
  Form1.Visible = false;
  Form5.Visible = true;
}

void open_form6() {
  Form1.Enabled = false;
  Form6.Visible = true;
  Form6.File1.Pattern = "*.txt";
}

void cancel_overlay(forms_layer::form& dialog) {
  dialog.Visible = false;
  Form1.Enabled = true;
}

void cancel_replacement(forms_layer::form& dialog) {
  dialog.Visible = false;
  Form1.Visible = true;
}

void restore_windows() {
  tool_state.archive_file.abandon();
  Form3.Visible = false;
  show_bars(false);
  if (!Form4.Visible() && !Form5.Visible()) Form1.Visible = true;
  if (!Form2.Visible() && !Form6.Visible()) Form1.Enabled = true;
}

void read_archive_of_form2() {
  read_archive(Form2.File1.Path());
  Form1.Enabled = true;
  Form2.Visible = false;
}

}  // namespace ostrane
