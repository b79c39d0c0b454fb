#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "files/file_path.h"

namespace ostrane {

// The working fields of a comparison.
struct shiplist_comparison {
  std::vector<std::string> shiplist_lines;
  std::int16_t shiplist_last = 0;  // index of the final line
  bool shiplist_walk_done = false;
};

// Reads the lines of a shiplist; `shiplist_last` is the index of the final one, which is no name
// but stands opposite the archive's end record. A file of no bytes is one empty line. Throws
// file_error, and data_error if it has more than 32768 lines.
void read_shiplist(const files::file_path& path, shiplist_comparison& comparison);

// Puts all lines but the final one into ascending order of their keys and leaves each key once;
// `shiplist_last` falls by as many as went.
void sort_shiplist(shiplist_comparison& comparison);

}  // namespace ostrane
