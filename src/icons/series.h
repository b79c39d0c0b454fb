#pragma once

// A series: consecutive icons of a file, one per slot, up to the first of: the end of the file,
// `max_icons` slots, the bottom of `Frame1`, an icon position outside the archive. Both procedures
// set `Text2`, `Text3` and the fields of the series in `tool_state`, and report an archive that
// cannot be read.
namespace ostrane {

// Shows the first series of the entry `selected_index`, under the working message.
void show_shp_series();

// Shows the series after the current one, unless the file has no more icons or another archive is
// open.
void show_next_series();

}  // namespace ostrane
