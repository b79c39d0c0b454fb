#pragma once

namespace ostrane {

// Decodes the stream of the icon of `icon_header` from `archive_file` and paints it on the slot
// `current_slot` in the colours of `colour_table`, clipped to the slot. A stream that ends early
// ends the icon. Throws file_error.
void decode_icon();

}  // namespace ostrane
