#include "pictures/icon_json.h"

#include <algorithm>

#include "data/entry_file_name.h"
#include "pictures/json_fields.h"
#include "pictures/json_text.h"

namespace ostrane {

namespace {

constexpr const char* form = "ostrane-icons";

const char* text_of(icon_kind kind) {
  if (kind == icon_kind::drawable) return "drawable";
  return kind == icon_kind::blank ? "blank" : "refused";
}

std::string json_of(const exported_icon& icon) {
  const icon_head& head = icon.head;
  std::string text = json_object({{"number", std::to_string(icon.number)},
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

icon_head head_in(const json& object) {
  return {.no_of_rows = number_in<std::int16_t>(object, "no_of_rows"),
          .no_of_cols = number_in<std::int16_t>(object, "no_of_cols"),
          .col_start = number_in<std::int32_t>(object, "col_start"),
          .row_start = number_in<std::int32_t>(object, "row_start"),
          .col_end = number_in<std::int32_t>(object, "col_end"),
          .row_end = number_in<std::int32_t>(object, "row_end"),
          .spare = number_in<std::int32_t>(object, "spare")};
}

exported_icon icon_in(const json& object) {
  exported_icon icon = {.file = {}, .head = head_in(object)};
  const json& file = object.at("file");
  if (!file.is_null()) icon.file = file_name_in(file);
  if (object.contains("number")) icon.number = number_in<std::int32_t>(object, "number");
  icon.last_column = object.contains("last_column") ? number_in<std::int32_t>(object, "last_column")
                                                    : icon.head.col_end;
  return icon;
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
    text += json_of(exported.icons[i]);
  }
  return text + "\n]}\n";
}

std::u8string file_name_in(const json& file) {
  std::u8string name = files::as_utf8(file.get<std::string>());
  const std::optional<std::string> text = files::from_utf8(name);
  const std::string unsafe =
      text ? unsafe_name_reason(*text) : "its name has characters that the code page lacks";
  if (!unsafe.empty()) throw data_error("a file cannot be read: " + unsafe);
  return name;
}

exported_icons icons_in(const json& all) {
  if (!all.is_object() || all.value("format", "") != form) {
    throw data_error("it is not the JSON of an icon file");
  }
  exported_icons found;
  if (all.contains("name")) found.name = files::as_utf8(all.at("name").get<std::string>());
  const std::optional<std::string> identifier =
      files::from_utf8(files::as_utf8(all.at("identifier").get<std::string>()));
  if (!identifier || identifier->size() != found.identifier.size()) {
    throw data_error("its identifier does not have four characters");
  }
  std::copy(identifier->begin(), identifier->end(), found.identifier.begin());
  found.scale = number_in<std::int16_t>(all, "scale");
  const json& icons = all.at("icons");
  if (!icons.is_array() || icons.size() > std::size_t{max_icons_per_file}) {
    throw data_error("icons is not a list of at most " + std::to_string(max_icons_per_file));
  }
  for (const json& icon : icons) found.icons.push_back(icon_in(icon));
  return found;
}

}  // namespace ostrane
