#include "desktop/cursor_step.h"

#include <cstdlib>
#include <optional>
#include <utility>

namespace desktop {

namespace {

// Distance of two rectangles; rows count first. Rectangles of a row have the same top.
std::pair<int, int> distance(const QRect& rect, const QRect& from) {
  return {std::abs(rect.top() - from.top()), std::abs(rect.center().x() - from.center().x())};
}

bool lies_that_way(const QRect& rect, const QRect& from, int key) {
  return key == Qt::Key_Up ? rect.top() < from.top() : rect.top() > from.top();
}

std::optional<std::size_t> first_shown(const std::vector<QRect>& rects, std::size_t at,
                                       bool onward) {
  // A step back from index 0 wraps around, which ends the search like the end does.
  while (at < rects.size() && rects[at].isNull()) onward ? ++at : --at;
  return at < rects.size() ? std::optional(at) : std::nullopt;
}

std::size_t nearest_row_step(const std::vector<QRect>& rects, std::size_t from, int key) {
  std::size_t nearest = from;
  for (std::size_t i = 0; i < rects.size(); ++i) {
    if (rects[i].isNull() || !lies_that_way(rects[i], rects[from], key)) continue;
    const bool first = nearest == from;
    if (first || distance(rects[i], rects[from]) < distance(rects[nearest], rects[from])) {
      nearest = i;
    }
  }
  return nearest;
}

}  // namespace

bool is_cursor_key(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down ||
         key == Qt::Key_Home || key == Qt::Key_End;
}

std::size_t cursor_step(const std::vector<QRect>& rects, std::size_t from, int key) {
  switch (key) {
    case Qt::Key_Left:
      return first_shown(rects, from - 1, false).value_or(from);
    case Qt::Key_Right:
      return first_shown(rects, from + 1, true).value_or(from);
    case Qt::Key_Home:
      return first_shown(rects, 0, true).value_or(from);
    case Qt::Key_End:
      return first_shown(rects, rects.size() - 1, false).value_or(from);
    default:
      return nearest_row_step(rects, from, key);
  }
}

}  // namespace desktop
