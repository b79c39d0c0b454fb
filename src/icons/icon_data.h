#pragma once

#include <cstdint>

namespace ostrane {

// The numbers of an icon that the report tells, one record per slot.
struct icon_data_record {
  std::int32_t cols = 0;
  std::int32_t rows = 0;
  std::int32_t first_col = 0;
  std::int32_t last_col = 0;
  std::int32_t first_row = 0;
  std::int32_t last_row = 0;
};

}  // namespace ostrane
