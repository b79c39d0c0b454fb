#include "desktop/control_view.h"

#include <utility>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

using forms_layer::property_id;

constexpr unsigned bit(property_id what) { return 1U << static_cast<unsigned>(what); }

constexpr unsigned content = bit(property_id::caption) | bit(property_id::text) |
                             bit(property_id::items) | bit(property_id::range);

// The window's layout puts the lower edge of its list a pixel below the window, where it would not
// be seen.
QRect with_edge_in_sight(QRect place, const QWidget& ground) {
  if (place.bottom() == ground.height()) place.setBottom(ground.height() - 1);
  return place;
}

}  // namespace

bool control_view::note(property_id what) {
  const bool first = noted_ == 0;
  noted_ |= bit(what);
  return first;
}

void control_view::catch_up() {
  const unsigned noted = std::exchange(noted_, 0U);
  const auto has = [noted](unsigned bits) { return (noted & bits) != 0; };
  QWidget& shown = widget();
  if (has(bit(property_id::rect))) {
    shown.setGeometry(with_edge_in_sight(place_of(control), *shown.parentWidget()));
  }
  if (has(bit(property_id::back_color))) show_colours();
  if (has(bit(property_id::tool_tip))) shown.setToolTip(as_tool_tip(control.ToolTipText()));
  if (has(content)) show_content();
  if (has(bit(property_id::selection) | bit(property_id::items))) show_selection();
  if (has(bit(property_id::enabled))) shown.setEnabled(control.Enabled());
  if (has(bit(property_id::visible))) shown.setVisible(control.Visible());
}

void control_view::show_all() {
  noted_ = ~0U;
  catch_up();
}

}  // namespace desktop
