#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "files/file_path.h"

namespace ostrane {

// The state of a comparison.
struct shiplist_comparison {
  std::vector<std::string> shiplist_lines;
  std::int16_t shiplist_last = 0;  // index of the final line
  bool shiplist_walk_done = false;
};

// Reads the lines of a shiplist. The final line, at index `shiplist_last`, is not a name; it
// corresponds to the archive's end record. An empty file is one empty line. Throws file_error, and
// data_error if the file has more than 32768 lines.
void read_shiplist(const files::file_path& path, shiplist_comparison& comparison);

// Sorts all lines but the final one by their keys, without lines with equal keys. Updates
// `shiplist_last`.
void sort_shiplist(shiplist_comparison& comparison);

}  // namespace ostrane
