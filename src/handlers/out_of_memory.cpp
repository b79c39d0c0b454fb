#include "handlers/out_of_memory.h"

#include "forms/forms.h"
#include "state/files.h"

namespace ostrane {

void recover_from_lack_of_memory() {
  for (auto* file : {&file_1, &file_5, &file_6}) file->abandon();
  Form3.Visible = false;
  if (!Form4.Visible() && !Form5.Visible()) Form1.Visible = true;
  if (!Form2.Visible() && !Form6.Visible()) Form1.Enabled = true;
}

}  // namespace ostrane
