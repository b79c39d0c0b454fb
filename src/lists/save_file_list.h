#pragma once

namespace ostrane {

// Saves the rows of `List1`, one per line, as "shplist.txt" in the current folder, replacing an
// existing file, and shows a message. Without rows it shows the message only. Reports a file that
// cannot be written.
void save_file_list();

}  // namespace ostrane
