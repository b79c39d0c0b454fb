#pragma once

namespace ostrane {

// Click on a row of `List1`: shows what the entry holds, by the extension of its name, and puts the
// name and its description into the caption of `Frame1`.
void show_clicked_entry();

// Double click on a row: draws an icon file once more; other kinds but palettes get the message.
void show_double_clicked_entry();

}  // namespace ostrane
