#include "desktop/window_position.h"

#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace desktop {

QPoint first_position(const QWidget& window, const forms_layer::form_design& designed,
                      const QWidget* owner) {
  const bool has_owner = owner != nullptr && owner != &window;
  const bool over_owner = has_owner && designed.opens == forms_layer::start_position::owner_centre;
  const QScreen* screen = over_owner ? owner->screen() : window.screen();
  const QRect free = screen->availableGeometry();
  const QMargins margins = has_owner ? owner->windowHandle()->frameMargins() : QMargins();
  QRect frame = QRect({}, window.size()).marginsAdded(margins);
  frame.moveCenter(over_owner ? owner->windowHandle()->frameGeometry().center() : free.center());
  const int max_left = std::max(free.left(), free.right() + 1 - frame.width());
  const int max_top = std::max(free.top(), free.bottom() + 1 - frame.height());
  return {std::clamp(frame.left(), free.left(), max_left) + margins.left(),
          std::clamp(frame.top(), free.top(), max_top) + margins.top()};
}

}  // namespace desktop
