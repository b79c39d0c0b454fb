#pragma once

#include <cstdint>
#include <vector>

// What the user does with several entries that are selected in `List1`.
namespace ostrane {

// True if the row is selected with others. The end record does not count.
bool is_one_of_several(std::int32_t row);

// Sets captions and `Enabled` of the context menu for the selected rows, which become `menu_rows`,
// without the end record.
void prepare_several_entries();

// Ask for a folder and write the entries of `menu_rows` there: their files, or a PNG for each icon
// of the icon files. No file is replaced. Both report what was not written.
void extract_several_entries();
void export_several_entries();

// Lets the user drag the entries of these rows to another program, which gets files.
void drag_entries(const std::vector<std::int32_t>& rows);

}  // namespace ostrane
