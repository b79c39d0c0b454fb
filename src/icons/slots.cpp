#include "icons/slots.h"

#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

void load_slot(std::int16_t slot) {
  if (tool_state.slots_loaded >= slot) return;
  ++tool_state.slots_loaded;
  Form1.s16_image.Load(slot);
  Form1.s16_image(slot).ScaleMode = 3;
  Form1.s16_image(slot).Visible = false;
}

void shrink_slot(std::int32_t slot) {
  Form1.s16_image(slot).Cls();
  Form1.s16_image(slot).Height = 100;
  Form1.s16_image(slot).Width = 100;
}

void clear_slots_for_icons() {
  for (std::int32_t slot = 1; slot <= tool_state.slots_loaded; ++slot) {
    Form1.s16_image(slot).ToolTipText = icon_tool_tip;
    Form1.s16_image(slot).BackColor = platform::system_button_face;
    shrink_slot(slot);
  }
}

}  // namespace ostrane
