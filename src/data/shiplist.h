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

// Reads the lines of a shiplist. `shiplist_last` becomes the index of the final line, which is no
// name: it matches the archive's end record. An empty file has one empty line. Throws file_error,
// and data_error if there are more than 32768 lines.
void read_shiplist(const files::file_path& path, shiplist_comparison& comparison);

// Sorts all lines but the final one by their keys and drops lines with equal keys. `shiplist_last`
// decreases by the number of dropped lines.
void sort_shiplist(shiplist_comparison& comparison);

}  // namespace ostrane
