#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

// Writes JSON as text. A tree of values of nlohmann-json allocates memory when it is destroyed, and
// ends the program if there is none.
namespace ostrane {

// A field of an object; the value is JSON.
struct json_field {
  const char* name;
  std::string value;
};

std::string json_object(std::initializer_list<json_field> fields);

// `text` is UTF-8.
std::string json_string(std::string_view text);

}  // namespace ostrane
