#include "desktop/window_place.h"

#include <QScreen>
#include <algorithm>

namespace desktop {

namespace {

// About what a title bar takes, which the window manager tells only when the window is there. Until
// then a place is that of the client area.
constexpr int title_height = 24;

}  // namespace

QPoint first_place(const QWidget& window, const forms_layer::form_design& designed,
                   const QWidget* owner) {
  const bool over_owner = owner != nullptr && owner != &window &&
                          designed.opens == forms_layer::start_position::owner_centre;
  const QScreen* screen = over_owner ? owner->screen() : window.screen();
  const QRect free = screen->availableGeometry();
  QRect place(QPoint(0, 0), window.size() + QSize(0, title_height));
  place.moveCenter(over_owner ? owner->frameGeometry().center() : free.center());
  const int most_left = std::max(free.left(), free.right() + 1 - place.width());
  const int most_top = std::max(free.top(), free.bottom() + 1 - place.height());
  return {std::clamp(place.left(), free.left(), most_left),
          std::clamp(place.top(), free.top(), most_top) + title_height};
}

}  // namespace desktop
