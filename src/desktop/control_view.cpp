#include "desktop/control_view.h"

#include <utility>

#include "desktop/screen_text.h"

namespace desktop {

namespace {

using forms_layer::property_id;

constexpr unsigned bit(property_id what) { return 1U << static_cast<unsigned>(what); }

constexpr unsigned content = bit(property_id::caption) | bit(property_id::text) |
                             bit(property_id::items) | bit(property_id::range);

// The designed layout puts the lower edge of the list one pixel below the window, where it is
// invisible.
QRect with_visible_edge(QRect rect, const QWidget& parent) {
  if (rect.bottom() == parent.height()) rect.setBottom(parent.height() - 1);
  return rect;
}

}  // namespace

void control_view::mark_dirty(property_id what) { dirty_ |= bit(what); }

void control_view::sync() {
  const unsigned dirty = std::exchange(dirty_, 0U);
  const auto has = [dirty](unsigned bits) { return (dirty & bits) != 0; };
  QWidget& shown = widget();
  if (has(bit(property_id::rect))) {
    shown.setGeometry(with_visible_edge(rect_of(control), *shown.parentWidget()));
  }
  if (has(bit(property_id::back_color))) show_colours();
  if (has(bit(property_id::tool_tip))) {
    shown.setToolTip(as_tool_tip(control.ToolTipText()));
    shown.setAccessibleDescription(to_screen(control.ToolTipText()));
  }
  if (has(content)) show_content();
  if (has(bit(property_id::selection) | bit(property_id::items))) show_selection();
  if (has(bit(property_id::enabled))) shown.setEnabled(control.Enabled());
  if (has(bit(property_id::visible))) shown.setVisible(control.Visible());
}

void control_view::show_all() {
  dirty_ = ~0U;
  sync();
}

void control_view::show_colours() {
  QWidget& shown = widget();
  shown.setPalette(
      with_colours({}, shown.backgroundRole(), shown.foregroundRole(), control.BackColor()));
}

}  // namespace desktop
