#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/file_path.h"

// iconlist.csv: one row per line with two fields, separated by the first ";": an entry's name up to
// its first ".", and its description. There is no header line and no quoting.
namespace ostrane {

constexpr std::size_t max_icon_names = 32000;

struct icon_name_pair {
  std::string name;
  std::string description;
};

// Line n of the file becomes row n; row 0 is empty. Without a file there is an empty row 1. Lines
// without ";" give empty rows; lines after 32000 are skipped. After a read failure the rows before
// it are returned.
std::vector<icon_name_pair> read_icon_names(const files::file_path& path);

// The key to look up an entry's description: its name before the first ".", as a compare_key.
std::string icon_name_key(std::string_view entry_name);

// The first row for an entry, by its name before the first ".". Ignores case and surrounding
// blanks. 0 if there is none.
std::size_t find_icon_name(const std::vector<icon_name_pair>& rows, std::string_view entry_name);

}  // namespace ostrane
