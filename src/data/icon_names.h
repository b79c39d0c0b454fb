#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/file_path.h"

// iconlist.csv: one line per row, two fields, separated by the first ";" of the line: an entry's
// name up to its first ".", and its description. There is no head, no quoting and no escape.
namespace ostrane {

constexpr std::size_t max_icon_names = 32000;

struct icon_name_pair {
  std::string name;
  std::string description;
};

// Line n of the file becomes row n; row 0 is empty. Row 1 exists, empty, also without a file. Lines
// without ";" leave their row empty; lines after 32000 are skipped. A file that cannot be read
// whole gives the rows before the failure.
std::vector<icon_name_pair> read_icon_names(const files::file_path& path);

// What the name of an entry is looked up by: all before its first ".", as a compare_key.
std::string icon_name_key(std::string_view entry_name);

// The row for the name of an entry: the first whose name is that up to its first ".", both trimmed
// and without regard to case. 0 if there is none.
std::size_t find_icon_name(const std::vector<icon_name_pair>& rows, std::string_view entry_name);

}  // namespace ostrane
