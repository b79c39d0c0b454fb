#include "lists/reports.h"

#include "data/compare_report.h"
#include "files/failure.h"
#include "files/paths.h"
#include "files/text.h"
#include "files/text_file.h"
#include "forms/form1.h"
#include "forms/form6.h"
#include "forms_layer/message_box.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr const char* compare_report_path = "C:\\Shiplist-compare.txt";

void write_list(const files::file_path& path, std::span<const std::string> lines) {
  files::write_lines(path, lines, tool_state.archive_stamp.identity);
}

void write_comparison(const std::string& shiplist_name) {
  const std::string path = files::with_separator(Form6.File1.Path()) + shiplist_name;
  read_shiplist(files::to_file_path(path), tool_state.comparison);
  sort_shiplist(tool_state.comparison);
  write_list(files::to_file_path(compare_report_path),
             run_comparison(tool_state.comparison, Form1.List1.rows()).lines);
}

}  // namespace

void save_file_list() {
  std::string failure;
  if (Form1.List1.ListCount() > 0) {
    failure = files::failure_of(
        [] { write_list(files::in_current_folder("shplist.txt"), Form1.List1.rows()); });
  }
  forms_layer::message_box(failure.empty()
                               ? "A list of all files in ostrane.dat are saved in shplist.txt"
                               : "The list of files was not saved. " + failure);
}

void compare_with_shiplist() {
  const std::string name(files::trimmed(Form6.Text1.Text()));
  if (name.empty()) {
    return forms_layer::message_box("No shiplist is chosen. Click one in the list of files.");
  }
  const std::string failure = tool_state.archive_is_open == flag_false
                                  ? "No archive is open. Read one first."
                                  : files::failure_of([&name] { write_comparison(name); });
  if (!failure.empty()) return forms_layer::message_box(failure + " Nothing was compared.");
  // Success shows no message: the report is the result.
  Form6.Visible = false;
  Form1.Enabled = true;
  Form1.SetFocus();
}

}  // namespace ostrane
