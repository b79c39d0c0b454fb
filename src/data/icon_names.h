#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/file_path.h"

// iconlist.csv: each line has two fields, separated by the first ";": an entry's name up to its
// first ".", and its description. There is no header line, no quoting and no escape.
namespace ostrane {

constexpr std::size_t max_icon_names = 32000;

struct icon_name_pair {
  std::string name;
  std::string description;
};

// Line n of the file becomes row n; row 0 is empty. Without a file, row 1 is empty too. Lines
// without ";" become empty rows; lines after the first 32000 are skipped. After a read failure the
// rows before it are returned.
std::vector<icon_name_pair> read_icon_names(const files::file_path& path);

// Returns the path of the file in a folder, in any case.
files::file_path icon_names_file_in(const std::filesystem::path& folder);

// Returns the lookup key of an entry: the compare_key of its name up to the first ".", or "".
std::string icon_name_key(std::string_view entry_name);

// Returns the first row whose name has the key of this entry, or 0. Names are trimmed and compared
// case-insensitively.
std::size_t find_icon_name(const std::vector<icon_name_pair>& rows, std::string_view entry_name);

}  // namespace ostrane
