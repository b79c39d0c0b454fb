#include "forms_layer/control.h"

#include <algorithm>

#include "forms_layer/container.h"
#include "forms_layer/form.h"
#include "forms_layer/screen.h"

namespace forms_layer {

control::control(container& parent_container, control_kind control_kind, const design& as_designed)
    : kind(control_kind),
      designed(as_designed),
      parent(parent_container),
      Left(*this, as_designed.at.left),
      Top(*this, as_designed.at.top),
      Width(*this, as_designed.at.width),
      Height(*this, as_designed.at.height),
      Visible(*this, as_designed.visible),
      Enabled(*this, as_designed.enabled),
      BackColor(*this, as_designed.back_color),
      ToolTipText(*this, as_designed.tool_tip) {
  parent.controls_.push_back(this);
}

control::~control() {
  auto& siblings = parent.controls_;
  siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
}

void control::Move(std::int32_t left, std::int32_t top) {
  Left = left;
  Top = top;
}

void control::Refresh() { the_screen().refresh(*this); }

form& control::owner_form() { return parent.containing_form(); }

bool control::takes_input() {
  for (control* at = this; at != nullptr; at = at->parent.as_control()) {
    if (!at->Visible() || !at->Enabled()) return false;
  }
  const form& window = owner_form();
  return window.Visible() && window.Enabled();
}

void control::on_assigned(property_id what, bool differs) {
  if (differs) notify_screen(what);
}

void control::notify_screen(property_id what) { the_screen().control_changed(*this, what); }

}  // namespace forms_layer
