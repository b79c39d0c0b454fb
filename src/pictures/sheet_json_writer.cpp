#include "pictures/sheet_json_writer.h"

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

std::string frame_json(const std::u8string& name, frame_offset at, const picture& drawn, int pace,
                       int scale) {
  const int width = drawn.columns() * scale;
  const int height = drawn.rows() * scale;
  return json_object({{"filename", json_string(name)},
                      {"frame", rectangle(at.left * scale, at.top * scale, width, height)},
                      {"rotated", "false"},
                      {"trimmed", "false"},
                      {"spriteSourceSize", rectangle(0, 0, width, height)},
                      {"sourceSize", size_json(width, height)},
                      {"duration", std::to_string(pace * milliseconds_per_hundredth)}});
}

std::string meta_json(const picture& drawn, const std::u8string& image, int scale) {
  return json_object({{"app", json_string("ostrane-dat")},
                      {"version", json_string(version)},
                      {"image", json_string(image)},
                      {"format", json_string(form_of(drawn).is_indexed ? "I8" : "RGBA8888")},
                      {"size", size_json(drawn.columns() * scale, drawn.rows() * scale)},
                      {"scale", json_string("1")}});
}

}  // namespace

std::string json_of(const sheet& all, const std::vector<picture>& pictures,
                    const std::vector<std::u8string>& names, const std::u8string& image, int pace,
                    int scale, const std::string& icons) {
  std::string text = "{\"frames\":[";
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    text += i == 0 ? "\n " : ",\n ";
    text += frame_json(names[i], offset_of_frame(all, i), pictures[i], pace, scale);
  }
  return text + "\n],\"meta\":" + meta_json(all.drawn, image, scale) + ",\"ostrane\":" + icons +
         "}\n";
}

}  // namespace ostrane
