#include "lists/compare_key.h"

#include "platform/code_page.h"
#include "platform/text.h"

namespace ostrane {

std::string compare_key(std::string_view name) {
  return platform::upper_case(platform::trimmed(name));
}

}  // namespace ostrane
