#include "lists/compare.h"

#include "forms/form1.h"
#include "forms/form6.h"
#include "lists/compare_report.h"
#include "lists/shiplist.h"
#include "platform/file_error.h"
#include "platform/message_box.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace ostrane {

void compare_with_shiplist() {
  const std::string name(platform::trimmed(Form6.Text1.Text()));
  if (name.empty()) {
    platform::message_box("No shiplist is chosen. Click one in the list of files.");
    return;
  }
  try {
    read_shiplist(platform::with_separator(Form6.File1.Path()) + name);
    sort_shiplist();
    write_compare_report();
  } catch (const platform::file_error& error) {
    platform::message_box(error.text + " Nothing was compared.");
    return;
  }
  Form6.Visible = false;
  Form1.Enabled = true;
  Form1.SetFocus();
}

}  // namespace ostrane
