#include "archive/new_folder.h"

#include "data/number_text.h"
#include "files/file_error.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/text.h"
#include "forms/form4.h"
#include "forms_layer/message_box.h"

namespace ostrane {

void make_new_folder() {
  if (files::trimmed(Form4.Text2.Text()).empty()) return;
  const std::string path = files::with_separator(Form4.Text1.Text()) + Form4.Text2.Text();
  try {
    files::create_folder(path);
    Form4.Dir1.Path = path;
    // The assignment raises no Change if Dir1 shows this path already, which is possible if another
    // program has removed the folder.
    Form4.File1.Refresh();
    Form4.Text1.Text = Form4.Dir1.Path();
  } catch (const files::file_error& error) {
    forms_layer::message_box(
        "Problem encountered while trying to make new Folder. The error reported from Windows is: "
        "Error Number: " +
        sign_column_text(static_cast<std::int64_t>(error.number)));
  }
}

}  // namespace ostrane
