#pragma once

#include <QKeyEvent>

namespace desktop {

// Either of the two keys that confirm.
inline bool is_enter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace desktop
