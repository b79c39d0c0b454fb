#include "command/pictures/sheet.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "command/pictures/pixel_form.h"
#include "data/data_error.h"
#include "data/icon_file.h"
#include "state/version.h"

namespace ostrane::command {

namespace {

using json = nlohmann::ordered_json;

constexpr int milliseconds_per_hundredth = 10;

struct grid_place {
  int left;
  int top;
};

grid_place place_of(const sheet& all, std::size_t number) {
  const int n = static_cast<int>(number);
  return {n % all.columns * all.cell_width, n / all.columns * all.cell_height};
}

json rectangle(int x, int y, int width, int height) {
  return {{"x", x}, {"y", y}, {"w", width}, {"h", height}};
}

}  // namespace

sheet sheet_of(const std::vector<picture>& pictures) {
  sheet all;
  for (const picture& drawn : pictures) {
    all.cell_width = std::max(all.cell_width, drawn.columns());
    all.cell_height = std::max(all.cell_height, drawn.rows());
  }
  const auto count = static_cast<std::int64_t>(pictures.size());
  while (std::int64_t{all.columns} * all.columns < count) ++all.columns;
  const std::int64_t rows = all.columns == 0 ? 0 : (count + all.columns - 1) / all.columns;
  const std::int64_t width = std::int64_t{all.columns} * all.cell_width;
  const std::int64_t height = rows * all.cell_height;
  if (width * height > max_picture_cells) throw data_error("The sheet would be too large.");
  all.drawn = picture(static_cast<int>(width), static_cast<int>(height));
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const grid_place to = place_of(all, i);
    for (int row = 0; row < pictures[i].rows(); ++row) {
      const auto cells = pictures[i].row(row);
      std::copy(cells.begin(), cells.end(), all.drawn.row(to.top + row).begin() + to.left);
    }
  }
  return all;
}

std::string json_of(const sheet& all, const std::vector<picture>& pictures,
                    const std::vector<std::string>& names, const std::string& image, int pace,
                    int scale) {
  json frames = json::array();
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const grid_place at = place_of(all, i);
    const int width = pictures[i].columns() * scale;
    const int height = pictures[i].rows() * scale;
    frames.push_back({{"filename", names[i]},
                      {"frame", rectangle(at.left * scale, at.top * scale, width, height)},
                      {"rotated", false},
                      {"trimmed", false},
                      {"spriteSourceSize", rectangle(0, 0, width, height)},
                      {"sourceSize", {{"w", width}, {"h", height}}},
                      {"duration", pace * milliseconds_per_hundredth}});
  }
  const json meta = {
      {"app", "ostrane-dat"},
      {"version", version},
      {"image", image},
      {"format", form_of(all.drawn).is_indexed ? "I8" : "RGBA8888"},
      {"size", {{"w", all.drawn.columns() * scale}, {"h", all.drawn.rows() * scale}}},
      {"scale", "1"}};
  return json{{"frames", frames}, {"meta", meta}}.dump(1) + "\n";
}

}  // namespace ostrane::command
