#include "pictures/icon_json.h"

#include <algorithm>

#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "files/code_page.h"
#include "pictures/json_text.h"

namespace ostrane {

namespace {

using json = nlohmann::ordered_json;

constexpr const char* form = "ostrane-icons";

const char* text_of(icon_kind kind) {
  if (kind == icon_kind::drawable) return "drawable";
  return kind == icon_kind::blank ? "blank" : "refused";
}

std::string json_of(const exported_icon& icon, std::size_t number) {
  const icon_head& head = icon.head;
  std::string text = json_object({{"number", std::to_string(number)},
                                  {"file", icon.file ? json_string(*icon.file) : "null"},
                                  {"kind", json_string(text_of(classify_icon(head)))},
                                  {"offset", std::to_string(icon.offset)},
                                  {"no_of_rows", std::to_string(head.no_of_rows)},
                                  {"no_of_cols", std::to_string(head.no_of_cols)},
                                  {"spare", std::to_string(head.spare)},
                                  {"col_start", std::to_string(head.col_start)},
                                  {"row_start", std::to_string(head.row_start)},
                                  {"col_end", std::to_string(head.col_end)},
                                  {"row_end", std::to_string(head.row_end)}});
  if (icon.last_column <= head.col_end) return text;
  text.back() = ',';
  return text + "\"last_column\":" + std::to_string(icon.last_column) + "}";
}

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

icon_head head_in(const json& object) {
  return {.no_of_rows = number_in<std::int16_t>(object, "no_of_rows"),
          .no_of_cols = number_in<std::int16_t>(object, "no_of_cols"),
          .col_start = number_in<std::int32_t>(object, "col_start"),
          .row_start = number_in<std::int32_t>(object, "row_start"),
          .col_end = number_in<std::int32_t>(object, "col_end"),
          .row_end = number_in<std::int32_t>(object, "row_end"),
          .spare = number_in<std::int32_t>(object, "spare")};
}

// Refuses a name that would select a file outside the folder of the JSON.
std::u8string file_name_in(const json& file) {
  std::u8string name = files::as_utf8(file.get<std::string>());
  const std::optional<std::string> text = files::from_utf8(name);
  const std::string unsafe =
      text ? unsafe_name_reason(*text) : "its name has characters that the code page lacks";
  if (!unsafe.empty()) throw data_error("a file cannot be read: " + unsafe);
  return name;
}

exported_icon icon_in(const json& object) {
  exported_icon icon = {.file = {}, .head = head_in(object)};
  const json& file = object.at("file");
  if (!file.is_null()) icon.file = file_name_in(file);
  icon.last_column = object.contains("last_column") ? number_in<std::int32_t>(object, "last_column")
                                                    : icon.head.col_end;
  return icon;
}

exported_icons read(const std::string& text) {
  const json all = json::parse(text);
  if (all.value("format", "") != form) throw data_error("it is not the JSON of an icon file");
  exported_icons found;
  const std::optional<std::string> identifier =
      files::from_utf8(files::as_utf8(all.at("identifier").get<std::string>()));
  if (!identifier || identifier->size() != found.identifier.size()) {
    throw data_error("its identifier does not have four characters");
  }
  std::copy(identifier->begin(), identifier->end(), found.identifier.begin());
  found.scale = number_in<std::int16_t>(all, "scale");
  const json& icons = all.at("icons");
  if (!icons.is_array() || icons.size() > std::size_t{max_icons_per_file}) {
    throw data_error("icons is not a list of at most 5000");
  }
  for (const json& icon : icons) found.icons.push_back(icon_in(icon));
  return found;
}

}  // namespace

std::string json_of(const exported_icons& exported) {
  const std::string_view identifier(exported.identifier.data(), exported.identifier.size());
  std::string text = json_object({{"format", json_string(form)},
                                  {"name", json_string(exported.name)},
                                  {"identifier", json_string(files::to_utf8(identifier))},
                                  {"scale", std::to_string(exported.scale)}});
  text.back() = ',';
  text += "\n \"icons\": [";
  for (std::size_t i = 0; i < exported.icons.size(); ++i) {
    text += i == 0 ? "\n  " : ",\n  ";
    text += json_of(exported.icons[i], exported.first + i);
  }
  return text + "\n]}\n";
}

exported_icons read_icon_json(const std::string& text, const std::u8string& shown) {
  const std::string cannot_read = "cannot be read as the JSON of an export: ";
  try {
    return read(text);
  } catch (const data_error& error) {
    throw data_error(shown, cannot_read + error.told.reason + ".");
  } catch (const json::exception& error) {
    throw data_error(shown,
                     cannot_read + files::from_utf8_lossy(files::as_utf8(error.what())) + ".");
  }
}

}  // namespace ostrane
