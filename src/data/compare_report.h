#pragma once

#include <span>
#include <string>
#include <vector>

#include "data/shiplist.h"

namespace ostrane {

struct compare_report {
  std::vector<std::string> lines;
  bool differs = false;  // a name was written, or the sides have different numbers of lines
};

// Steps through the names of an archive, its end record included, and a sorted shiplist, and writes
// names that only one side has. After each line both sides advance, even if their names differ, so
// some of these names are left out. Keeps in `shiplist_walk_done` whether the walk is over.
compare_report run_comparison(shiplist_comparison& comparison,
                              std::span<const std::string> archive);

}  // namespace ostrane
