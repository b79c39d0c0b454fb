#include "pictures/sheet.h"

#include "data/pixel_form.h"
#include "pictures/json_text.h"
#include "version/version.h"

namespace ostrane {

namespace {

constexpr int milliseconds_per_hundredth = 10;

std::string size_json(int width, int height) {
  return json_object({{"w", std::to_string(width)}, {"h", std::to_string(height)}});
}

std::string rectangle(int x, int y, int width, int height) {
  return json_object({{"x", std::to_string(x)},
                      {"y", std::to_string(y)},
                      {"w", std::to_string(width)},
                      {"h", std::to_string(height)}});
}

}  // namespace

std::string json_of(const sheet& all, const std::vector<picture>& pictures,
                    const std::vector<std::u8string>& names, const std::u8string& image, int pace,
                    int scale, const std::string& icons) {
  std::string text = "{\"frames\":[";
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const frame_offset at = offset_of_frame(all, i);
    const int width = pictures[i].columns() * scale;
    const int height = pictures[i].rows() * scale;
    text += i == 0 ? "\n " : ",\n ";
    text += json_object({{"filename", json_string(names[i])},
                         {"frame", rectangle(at.left * scale, at.top * scale, width, height)},
                         {"rotated", "false"},
                         {"trimmed", "false"},
                         {"spriteSourceSize", rectangle(0, 0, width, height)},
                         {"sourceSize", size_json(width, height)},
                         {"duration", std::to_string(pace * milliseconds_per_hundredth)}});
  }
  const char* pixels = form_of(all.drawn).is_indexed ? "I8" : "RGBA8888";
  const std::string meta =
      json_object({{"app", json_string("ostrane-dat")},
                   {"version", json_string(version)},
                   {"image", json_string(image)},
                   {"format", json_string(pixels)},
                   {"size", size_json(all.drawn.columns() * scale, all.drawn.rows() * scale)},
                   {"scale", json_string("1")}});
  return text + "\n],\"meta\":" + meta + ",\"ostrane\":" + icons + "}\n";
}

}  // namespace ostrane
