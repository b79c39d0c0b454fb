#pragma once

// The menu Reports.
namespace ostrane {

// Saves the rows of `List1`, one per line, as "shplist.txt" in the current folder, replacing an
// existing file, and shows a message. Without rows it shows the message only. Reports a file that
// cannot be written.
void save_file_list();

// Compares the names in `List1` with the shiplist that `Form6` shows as chosen, writes the report,
// hides `Form6` and enables `Form1`. Reports a file that cannot be read or written; then the dialog
// stays. Changes `comparison`.
void compare_with_shiplist();

}  // namespace ostrane
