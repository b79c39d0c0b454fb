#include "handlers/out_of_memory.h"

#include "forms/forms.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

void recover_from_out_of_memory() {
  tool_state.archive_file.abandon();
  Form3.Visible = false;
  show_bars(false);
  if (!Form4.Visible() && !Form5.Visible()) Form1.Visible = true;
  if (!Form2.Visible() && !Form6.Visible()) Form1.Enabled = true;
}

}  // namespace ostrane
