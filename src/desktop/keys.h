#pragma once

#include <QKeyEvent>

namespace desktop {

// True for Return and Enter.
inline bool is_enter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace desktop
