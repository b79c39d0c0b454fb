#pragma once

#include <string>

namespace ostrane {

// One row of iconlist.csv.
struct icon_name_pair {
  std::string name;
  std::string description;
};

}  // namespace ostrane
