#pragma once

namespace ostrane {

// In the root of drive C, whatever the current folder is.
constexpr const char* compare_report_path = "C:\\Shiplist-compare.txt";

// Walks the names of `List1` and of `shiplist_lines`, which is sorted, side by side and writes what
// only one side has to the report file. Throws file_error.
void write_compare_report();

}  // namespace ostrane
