#include "pictures/sheet_json_reader.h"

#include <algorithm>

#include "data/icon_file.h"
#include "files/natural_order.h"
#include "pictures/json_fields.h"

namespace ostrane {

namespace {

constexpr int max_side = 32768;

int side_in(const json& object, const char* field, int least = 0) {
  const auto number = number_in<std::int32_t>(object, field);
  if (number < least || number > max_side) {
    throw data_error(std::string(field) + " is out of range");
  }
  return number;
}

// `spriteSourceSize` and `sourceSize` say where a trimmed frame lies in its picture.
sheet_frame frame_in(const std::string& name, const json& object) {
  const json& area = object.at("frame");
  sheet_frame frame = {.name = files::as_utf8(name),
                       .x = side_in(area, "x"),
                       .y = side_in(area, "y"),
                       .width = side_in(area, "w"),
                       .height = side_in(area, "h")};
  if (object.value("rotated", false)) throw data_error("its frame " + name + " is rotated");
  frame.columns = frame.width;
  frame.rows = frame.height;
  if (object.contains("sourceSize")) {
    frame.columns = side_in(object.at("sourceSize"), "w", 1);
    frame.rows = side_in(object.at("sourceSize"), "h", 1);
  }
  if (object.contains("spriteSourceSize")) {
    frame.left = side_in(object.at("spriteSourceSize"), "x");
    frame.top = side_in(object.at("spriteSourceSize"), "y");
  }
  return frame;
}

std::vector<sheet_frame> frames_in(const json& frames) {
  if (frames.size() > std::size_t{max_icons_per_file}) {
    throw data_error("it has over " + std::to_string(max_icons_per_file) + " frames");
  }
  std::vector<sheet_frame> found;
  std::int64_t cells = 0;
  for (const auto& [key, value] : frames.items()) {
    found.push_back(
        frame_in(frames.is_array() ? value.value("filename", "frame " + key) : key, value));
    cells += std::int64_t{found.back().columns} * found.back().rows;
  }
  if (cells > max_picture_cells) {
    throw data_error("its pictures have more than " + std::to_string(max_picture_cells) +
                     " pixels together");
  }
  // The fields of an object have no order.
  if (!frames.is_array()) {
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
      return files::natural_less(files::as_bytes(a.name), files::as_bytes(b.name));
    });
  }
  return found;
}

// Some programs write the path of the image; only its name counts.
std::u8string image_in(const json& all) {
  if (!all.contains("meta") || !all.at("meta").contains("image")) return {};
  const std::string path = all.at("meta").at("image").get<std::string>();
  return file_name_in(path.substr(path.find_last_of("\\/") + 1));
}

sheet_layout layout_in(const json& all) {
  sheet_layout layout = {
      .image = image_in(all), .frames = frames_in(all.at("frames")), .exported = {}};
  if (all.contains("ostrane")) layout.exported = icons_in(all.at("ostrane"));
  return layout;
}

}  // namespace

export_json read_export_json(const std::string& text, const std::u8string& shown) {
  return read_json(text, shown, [](const json& all) -> export_json {
    if (all.is_object() && all.contains("frames")) return layout_in(all);
    return icons_in(all);
  });
}

}  // namespace ostrane
