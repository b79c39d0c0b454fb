#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace forms_layer {

// The text of a row, or "" if there is no row of that number.
inline const std::string& row_text(const std::vector<std::string>& rows, std::int32_t row) {
  static const std::string none;
  const auto index = static_cast<std::size_t>(row);
  return row >= 0 && index < rows.size() ? rows[index] : none;
}

}  // namespace forms_layer
