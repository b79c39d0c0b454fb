#include "desktop/keyboard.h"

#include <cstdlib>
#include <limits>
#include <utility>

namespace desktop {

namespace {

// How far a key moves the cursor if it goes from one rectangle to the other; rows count before
// columns. Not positive if the key leads elsewhere. Rectangles of a row have the same top.
std::pair<int, int> distance(const std::vector<QRect>& rects, std::size_t from, std::size_t to,
                             int key) {
  const int steps = static_cast<int>(to) - static_cast<int>(from);
  const int down = rects[to].top() - rects[from].top();
  const int across = std::abs(rects[to].center().x() - rects[from].center().x());
  switch (key) {
    case Qt::Key_Left:
      return {-steps, 0};
    case Qt::Key_Right:
      return {steps, 0};
    case Qt::Key_Home:
      return {static_cast<int>(to) + 1, 0};
    case Qt::Key_End:
      return {static_cast<int>(rects.size() - to), 0};
    case Qt::Key_Up:
      return {-down, across};
    default:
      return {down, across};
  }
}

}  // namespace

bool is_enter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool is_cursor_key(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down ||
         key == Qt::Key_Home || key == Qt::Key_End;
}

std::size_t cursor_step(const std::vector<QRect>& rects, std::size_t from, int key) {
  std::size_t nearest = from;
  std::pair<int, int> least{std::numeric_limits<int>::max(), 0};
  for (std::size_t to = 0; to < rects.size(); ++to) {
    const std::pair<int, int> there = distance(rects, from, to, key);
    if (rects[to].isNull() || there.first <= 0 || there >= least) continue;
    nearest = to;
    least = there;
  }
  return nearest;
}

}  // namespace desktop
