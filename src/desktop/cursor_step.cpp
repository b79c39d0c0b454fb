#include "desktop/cursor_step.h"

#include <cstdlib>
#include <optional>
#include <utility>

namespace desktop {

namespace {

// How far `place` is from `from`, whole rows first; places of a row have one top.
std::pair<int, int> distance(const QRect& place, const QRect& from) {
  return {std::abs(place.top() - from.top()), std::abs(place.center().x() - from.center().x())};
}

bool lies_that_way(const QRect& place, const QRect& from, int key) {
  return key == Qt::Key_Up ? place.top() < from.top() : place.top() > from.top();
}

std::optional<std::size_t> first_shown(const std::vector<QRect>& places, std::size_t at,
                                       bool onward) {
  // A step back from place 0 ends the search as one behind the last place does.
  while (at < places.size() && places[at].isNull()) onward ? ++at : --at;
  return at < places.size() ? std::optional(at) : std::nullopt;
}

std::size_t nearest_row_step(const std::vector<QRect>& places, std::size_t from, int key) {
  std::size_t nearest = from;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (places[i].isNull() || !lies_that_way(places[i], places[from], key)) continue;
    const bool first = nearest == from;
    if (first || distance(places[i], places[from]) < distance(places[nearest], places[from])) {
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

std::size_t cursor_step(const std::vector<QRect>& places, std::size_t from, int key) {
  switch (key) {
    case Qt::Key_Left:
      return first_shown(places, from - 1, false).value_or(from);
    case Qt::Key_Right:
      return first_shown(places, from + 1, true).value_or(from);
    case Qt::Key_Home:
      return first_shown(places, 0, true).value_or(from);
    case Qt::Key_End:
      return first_shown(places, places.size() - 1, false).value_or(from);
    default:
      return nearest_row_step(places, from, key);
  }
}

}  // namespace desktop
