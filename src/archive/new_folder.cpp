#include "archive/new_folder.h"

#include "forms/form4.h"
#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/message_box.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "state/sign_column_text.h"

namespace ostrane {

void make_new_folder() {
  if (platform::trimmed(Form4.Text2.Text()).empty()) return;
  const std::string path = platform::with_separator(Form4.Text1.Text()) + Form4.Text2.Text();
  try {
    platform::create_folder(path);
    Form4.Dir1.Path = path;
    Form4.Dir1.Refresh();
    Form4.File1.Refresh();
    Form4.Text1.Text = Form4.Dir1.Path();
  } catch (const platform::file_error& error) {
    platform::message_box(
        "Problem encountered while trying to make new Folder. The error reported from Windows is: "
        "Error Number: " +
        sign_column_text(static_cast<std::int64_t>(error.number)));
  }
}

}  // namespace ostrane
