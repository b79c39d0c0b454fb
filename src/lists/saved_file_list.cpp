#include "lists/saved_file_list.h"

#include "files/failure.h"
#include "files/paths.h"
#include "files/text_file.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"

namespace ostrane {

namespace {

void write_rows() {
  files::text_writer writer(files::in_current_folder("shplist.txt"));
  for (std::int32_t i = 0; i < Form1.List1.ListCount(); ++i) {
    writer.write_line(Form1.List1.List(i));
  }
  writer.close();
}

}  // namespace

void save_file_list() {
  std::string failure;
  if (Form1.List1.ListCount() > 0) failure = files::failure_of(write_rows);
  forms_layer::message_box(failure.empty()
                               ? "A list of all files in ostrane.dat are saved in shplist.txt"
                               : "The list of files was not saved. " + failure);
}

}  // namespace ostrane
