#pragma once

namespace ostrane {

// Hides and clears all slots but element 0, empties `Text3`, ends browsing and a running motion,
// and puts the grid back to its start.
void reset_icon_view();

}  // namespace ostrane
