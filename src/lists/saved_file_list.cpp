#include "lists/saved_file_list.h"

#include "forms/form1.h"
#include "platform/file_error.h"
#include "platform/message_box.h"
#include "platform/text_file.h"

namespace ostrane {

namespace {

void write_rows() {
  platform::text_writer writer("shplist.txt");
  for (std::int32_t i = 0; i < Form1.List1.ListCount(); ++i) {
    writer.write_line(Form1.List1.List(i));
  }
  writer.close();
}

}  // namespace

void save_file_list() {
  try {
    if (Form1.List1.ListCount() > 0) write_rows();
    platform::message_box("A list of all files in ostrane.dat are saved in shplist.txt");
  } catch (const platform::file_error& error) {
    platform::message_box("The list of files was not saved. " + error.text);
  }
}

}  // namespace ostrane
