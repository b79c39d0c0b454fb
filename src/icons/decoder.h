#pragma once

// The run-length stream of an icon paints its data box row by row. The control byte b decides:
//
//   b                 operands           effect
//   0                 none               end of the row: down by 1, back to the first column
//   1                 a count            that many columns to the right, no pixel is touched
//   even, 2 to 254    a palette index    b / 2 pixels of that colour
//   odd, 3 to 255     (b - 1) / 2 bytes  one palette index for each of as many pixels
//
// The stream ends with the last row of the box; nothing marks its end.
namespace ostrane {

// Paints the icon of `icon_header` from the stream on the slot `current_slot`, in the colours of
// `colour_table`. What falls outside the slot is lost. A stream that runs out ends it.
void decode_icon();

}  // namespace ostrane
