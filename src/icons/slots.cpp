#include "icons/slots.h"

#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr int scale_in_pixels = 3;
constexpr std::int32_t empty_slot_side = 100;  // twips

}  // namespace

void load_slot(std::int16_t slot) {
  if (tool_state.slots_loaded >= slot) return;
  ++tool_state.slots_loaded;
  Form1.s16_image.Load(slot);
  Form1.s16_image(slot).ScaleMode = scale_in_pixels;
  Form1.s16_image(slot).Visible = false;
}

void shrink_slot(std::int32_t slot) {
  Form1.s16_image(slot).Cls();
  Form1.s16_image(slot).Height = empty_slot_side;
  Form1.s16_image(slot).Width = empty_slot_side;
}

void clear_slots_for_icons() {
  for (std::int32_t slot = 1; slot <= tool_state.slots_loaded; ++slot) {
    Form1.s16_image(slot).ToolTipText = icon_tool_tip;
    Form1.s16_image(slot).BackColor = forms_layer::system_button_face;
    shrink_slot(slot);
  }
}

}  // namespace ostrane
