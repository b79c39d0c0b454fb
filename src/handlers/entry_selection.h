#pragma once

namespace ostrane {

// Click on a row of `List1`: shows the entry according to its extension and sets the caption of
// `Frame1` to its name and description. Reports an unknown kind.
void show_clicked_entry();

// Double click on a row: draws an icon file again; ignores a palette; reports any other kind as
// unknown.
void show_double_clicked_entry();

}  // namespace ostrane
