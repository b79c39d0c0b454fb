#pragma once

#include <string>

namespace ostrane {

// Reads the lines of a shiplist into `shiplist_lines`; `shiplist_last` is the index of the final
// one, which is no name but stands opposite the archive's end record. A file of no bytes is one
// empty line. Throws file_error, also for more lines than there is room for.
void read_shiplist(const std::string& path);

// Puts all lines but the final one into ascending order of their keys and leaves each key once;
// `shiplist_last` falls by as many as went.
void sort_shiplist();

}  // namespace ostrane
