#include "handlers/window_switching.h"

#include <string>
#include <utility>

#include "archive/index_reader.h"
#include "files/failure.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "forms/forms.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

void start_at_archive() {
  const std::string current = files::current_folder();
  const bool is_first_folder = Form2.Dir1.Path() == "C:\\";
  const bool holds_archive = files::file_exists(files::with_separator(current) + "ostrane.dat");
  if (!is_first_folder || !holds_archive) return;
  files::ignore_failure([&current] { Form2.Dir1.Path = current; });
}

}  // namespace

void open_form2() {
  if (!std::exchange(tool_state.form2_was_opened, true)) start_at_archive();
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

void abandon_job() {
  tool_state.archive_file.abandon();
  Form3.Visible = false;
  set_bars_visible(false);
  if (!Form4.Visible() && !Form5.Visible()) Form1.Visible = true;
  if (!Form2.Visible() && !Form6.Visible()) Form1.Enabled = true;
}

void confirm_form2() {
  read_archive(Form2.File1.Path());
  Form1.Enabled = true;
  Form2.Visible = false;
}

bool confirm_listed_archive() {
  if (Form2.File1.ListCount() == 0) return false;
  confirm_form2();
  return true;
}

}  // namespace ostrane
