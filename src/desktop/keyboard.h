#pragma once

#include <QKeyEvent>
#include <QRect>
#include <cstddef>
#include <vector>

namespace desktop {

// True for Return and Enter.
bool is_enter(const QKeyEvent& event);

// True for the keys that move a cursor: arrows, Home and End.
bool is_cursor_key(int key);

// The index of the rectangle to which such a key moves the cursor from rectangle `from`: left and
// right to the previous and next one, up and down to the nearest one of the next row, Home and End
// to the first and last. Null rectangles are skipped. Returns `from` if there is none.
std::size_t cursor_step(const std::vector<QRect>& rects, std::size_t from, int key);

}  // namespace desktop
