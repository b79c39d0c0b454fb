#include "lists/compare.h"

#include "forms/form1.h"
#include "forms/form6.h"
#include "lists/compare_report.h"
#include "lists/shiplist.h"
#include "platform/failure.h"
#include "platform/message_box.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "state/tool_state.h"

namespace ostrane {

void compare_with_shiplist() {
  const std::string name(platform::trimmed(Form6.Text1.Text()));
  if (name.empty()) {
    platform::message_box("No shiplist is chosen. Click one in the list of files.");
    return;
  }
  const std::string failure =
      tool_state.archive_is_open == flag_false
          ? "No archive is open. Read one first."
          : platform::failure_of([&] {
              read_shiplist(platform::with_separator(Form6.File1.Path()) + name);
              sort_shiplist();
              write_compare_report();
            });
  if (!failure.empty()) {
    platform::message_box(failure + " Nothing was compared.");
    return;
  }
  Form6.Visible = false;
  Form1.Enabled = true;
  Form1.SetFocus();
}

}  // namespace ostrane
