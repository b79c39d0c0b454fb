#pragma once

#include <cstdint>

namespace ostrane {

// The numbers of the icon on a slot, for its report.
struct icon_data_record {
  std::int32_t cols;
  std::int32_t rows;
  std::int32_t first_col;
  std::int32_t last_col;
  std::int32_t first_row;
  std::int32_t last_row;
};

}  // namespace ostrane
