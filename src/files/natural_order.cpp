#include "files/natural_order.h"

#include <algorithm>

namespace files {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Removes a number from the front of `text` and returns it without leading zeros.
std::string_view take_number(std::string_view& text) {
  const auto* const end = std::find_if_not(text.begin(), text.end(), is_digit);
  std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(number.size());
  number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
  return number;
}

}  // namespace

bool natural_less(std::string_view a, std::string_view b) {
  std::string_view x = a;
  std::string_view y = b;
  while (!x.empty() && !y.empty()) {
    if (is_digit(x.front()) && is_digit(y.front())) {
      const std::string_view m = take_number(x);
      const std::string_view n = take_number(y);
      if (m.size() != n.size()) return m.size() < n.size();
      if (m != n) return m < n;
    } else if (x.front() == y.front()) {
      x.remove_prefix(1);
      y.remove_prefix(1);
    } else {
      return static_cast<unsigned char>(x.front()) < static_cast<unsigned char>(y.front());
    }
  }
  return x.empty() == y.empty() ? a < b : x.empty();
}

}  // namespace files
