#include "desktop/control_view.h"

#include <utility>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

using platform::aspect;

constexpr unsigned bit(aspect what) { return 1U << static_cast<unsigned>(what); }

constexpr unsigned content =
    bit(aspect::caption) | bit(aspect::text) | bit(aspect::items) | bit(aspect::range);

// The window's layout puts the lower edge of its list a pixel below the window, where it would not
// be seen.
QRect with_edge_in_sight(QRect place, const QWidget& ground) {
  if (place.bottom() == ground.height()) place.setBottom(ground.height() - 1);
  return place;
}

}  // namespace

bool control_view::note(aspect what) {
  const bool first = noted_ == 0;
  noted_ |= bit(what);
  return first;
}

void control_view::catch_up() {
  const unsigned noted = std::exchange(noted_, 0U);
  const auto has = [noted](unsigned bits) { return (noted & bits) != 0; };
  QWidget& shown = widget();
  if (has(bit(aspect::place))) {
    shown.setGeometry(with_edge_in_sight(place_of(control), *shown.parentWidget()));
  }
  if (has(bit(aspect::back_color))) show_colours();
  if (has(bit(aspect::tool_tip))) shown.setToolTip(as_tool_tip(control.ToolTipText()));
  if (has(content)) show_content();
  if (has(bit(aspect::selection) | bit(aspect::items))) show_selection();
  if (has(bit(aspect::enabled))) shown.setEnabled(control.Enabled());
  if (has(bit(aspect::visible))) shown.setVisible(control.Visible());
}

void control_view::show_all() {
  noted_ = ~0U;
  catch_up();
}

}  // namespace desktop
