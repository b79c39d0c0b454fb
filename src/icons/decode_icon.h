#pragma once

namespace ostrane {

// Paints the icon of `icon_header` from its stream (file 1) on the slot `current_slot`, in the
// colours of `colour_table`. What falls outside the slot is lost. A stream that runs out ends it.
void decode_icon();

}  // namespace ostrane
