#pragma once

#include <QRect>
#include <cstddef>
#include <vector>

namespace desktop {

// True for the keys that move a cursor: arrows, Home and End.
bool is_cursor_key(int key);

// Which of the places such a key leads to from place number `from`: left and right to the one
// before or behind it, up and down to the nearest one of the next row, Home and End to the first
// and the last. Null places are passed over. `from` itself if there is none that way.
std::size_t cursor_step(const std::vector<QRect>& places, std::size_t from, int key);

}  // namespace desktop
