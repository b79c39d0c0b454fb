#pragma once

namespace ostrane {

// Saves the rows of `List1`, one a line, as "shplist.txt" in the working folder, replacing a file
// of that name, and tells the user so; with no rows it only tells. A file that cannot be written
// gives a message that says so instead.
void save_file_list();

}  // namespace ostrane
