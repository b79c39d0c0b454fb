#pragma once

#include <string_view>

// iconlist.csv: one line a row, two fields, separated by the first ";" of the line: an entry's name
// up to its first ".", and its description. There is no head, no quoting and no escape.
namespace ostrane {

// Reads iconlist.csv beside the program into `icon_names`, line n into row n, and sets
// `icon_name_count`, which is 1 also without a file. Lines without ";" leave their row empty;
// lines behind 32000 are passed over.
void read_iconlist();

// The row of `icon_names` for the name of an entry: the first whose name is that up to its first
// ".", both trimmed and without regard to case. 0 if there is none.
std::size_t find_icon_name(std::string_view entry_name);

}  // namespace ostrane
