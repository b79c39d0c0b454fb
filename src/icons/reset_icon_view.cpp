#include "icons/reset_icon_view.h"

#include "forms/form1.h"
#include "icons/slot_grid.h"
#include "state/tool_state.h"

namespace ostrane {

void reset_icon_view() {
  // A motion that went on would step through the slots of the next series.
  Form1.Timer1.Enabled = false;
  tool_state.stream.entry_bytes_left = 0;
  for (std::int32_t slot = 1; slot <= tool_state.slots_loaded; ++slot) {
    Form1.s16_image(slot).Visible = false;
    Form1.s16_image(slot).Cls();
    Form1.s16_image(slot).BackColor = forms_layer::system_button_face;
  }
  Form1.Text3.Text = "";
  tool_state.browse_ready = flag_false;
  Form1.Refresh();
  tool_state.next_slot_left = grid_left;
  tool_state.next_slot_top = grid_top;
  tool_state.slot_gap = grid_gap;
  tool_state.row_height = 0;
}

}  // namespace ostrane
