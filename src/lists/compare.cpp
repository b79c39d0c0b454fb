#include "lists/compare.h"

#include "files/failure.h"
#include "files/paths.h"
#include "files/text.h"
#include "forms/form1.h"
#include "forms/form6.h"
#include "forms_layer/message_box.h"
#include "lists/compare_report.h"
#include "lists/shiplist.h"
#include "state/tool_state.h"

namespace ostrane {

void compare_with_shiplist() {
  const std::string name(files::trimmed(Form6.Text1.Text()));
  if (name.empty()) {
    forms_layer::message_box("No shiplist is chosen. Click one in the list of files.");
    return;
  }
  const std::string failure =
      tool_state.archive_is_open == flag_false
          ? "No archive is open. Read one first."
          : files::failure_of([&] {
              read_shiplist(files::with_separator(Form6.File1.Path()) + name);
              sort_shiplist();
              write_compare_report();
            });
  if (!failure.empty()) {
    forms_layer::message_box(failure + " Nothing was compared.");
    return;
  }
  Form6.Visible = false;
  Form1.Enabled = true;
  Form1.SetFocus();
}

}  // namespace ostrane
