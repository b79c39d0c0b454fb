#include "data/sign_column_text.h"

namespace ostrane {

std::string sign_column_text(std::int64_t number) {
  return (number < 0 ? "" : " ") + std::to_string(number);
}

}  // namespace ostrane
