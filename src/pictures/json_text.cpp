#include "pictures/json_text.h"

#include <array>
#include <cstdio>

namespace ostrane {

std::string json_object(std::initializer_list<json_field> fields) {
  std::string text;
  for (const json_field& field : fields) {
    text += text.empty() ? '{' : ',';
    text += json_string(field.name) + ":" + field.value;
  }
  return text + "}";
}

std::string json_string(std::string_view text) {
  constexpr unsigned char first_printable = 0x20;
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < first_printable) {
      std::array<char, 8> code = {};
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(byte));
      quoted += code.data();
      continue;
    }
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

}  // namespace ostrane
