#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>

#include "files/code_page.h"

// Writes JSON. nlohmann-json writes the texts. Objects are joined here: a tree of its values
// allocates memory when it is destroyed, and ends the program if there is none.
namespace ostrane {

// A field of an object; the value is JSON.
struct json_field {
  const char* name;
  std::string value;
};

inline std::string json_string(const std::u8string& text) {
  using value = nlohmann::json;
  return value(files::as_bytes(text)).dump(-1, ' ', false, value::error_handler_t::replace);
}
inline std::string json_string(const char* ascii) { return json_string(files::as_utf8(ascii)); }

inline std::string json_object(std::initializer_list<json_field> fields) {
  std::string text;
  for (const json_field& field : fields) {
    text += text.empty() ? '{' : ',';
    text += json_string(field.name) + ":" + field.value;
  }
  return text + "}";
}

}  // namespace ostrane
