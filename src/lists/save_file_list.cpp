#include "lists/save_file_list.h"

#include "files/failure.h"
#include "files/paths.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "lists/listed_names.h"

namespace ostrane {

void save_file_list() {
  std::string failure;
  if (Form1.List1.ListCount() > 0) {
    failure = files::failure_of(
        [] { write_name_list(files::in_current_folder("shplist.txt"), listed_names()); });
  }
  forms_layer::message_box(failure.empty()
                               ? "A list of all files in ostrane.dat are saved in shplist.txt"
                               : "The list of files was not saved. " + failure);
}

}  // namespace ostrane
