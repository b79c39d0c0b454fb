#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "data/data_error.h"
#include "files/code_page.h"
#include "pictures/icon_json.h"

// Reads JSON. All procedures throw data_error.
namespace ostrane {

using json = nlohmann::ordered_json;

template <typename Number>
Number number_in(const json& object, const char* field) {
  const json& value = object.at(field);
  if (!value.is_number_integer()) throw data_error(std::string(field) + " is not an integer");
  const bool is_too_large =
      value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t{INT64_MAX};
  const std::int64_t number = is_too_large ? INT64_MAX : value.get<std::int64_t>();
  if (number != static_cast<Number>(number)) {
    throw data_error(std::string(field) + " is out of range");
  }
  return static_cast<Number>(number);
}

// Reads the JSON of an icon file, see docs/command.md.
exported_icons icons_in(const json& all);

// Refuses a name that would select a file outside the folder of the JSON.
std::u8string file_name_in(const json& file);

// Parses a text and calls `read`. Its errors, without their class, and those of the parser, which
// have line and column, then name `shown`.
template <typename Read>
auto read_json(const std::string& text, const std::u8string& shown, const Read& read) {
  const std::string cannot_read = "cannot be read as the JSON of an export: ";
  try {
    return read(json::parse(text));
  } catch (const data_error& error) {
    throw data_error(shown, cannot_read + error.told.reason + ".");
  } catch (const json::exception& error) {
    const std::string told = files::from_utf8_lossy(files::as_utf8(error.what()));
    throw data_error(shown, cannot_read + told.substr(told.find("] ") + 2) + ".");
  }
}

}  // namespace ostrane
