#include "progress/show_working_message.h"

#include "forms/form3.h"

namespace ostrane {

void show_working_message() {
  Form3.Caption = "This is just to let you know, I'm working...";
  Form3.message.Caption =
      "It's only Visual Basic, so it takes some time.\r"
      "Working on the job...\r"
      "Have patience.................\r"
      "It's painting all these little dots that takes most of the time... \r"
      "Reading and unpacking the shp-file takes less than a 25%, the rest is Visual Basic "
      "overhead...";
  Form3.Refresh();
}

}  // namespace ostrane
