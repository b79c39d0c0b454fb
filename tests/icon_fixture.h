#pragma once

#include <string>
#include <vector>

#include "shp_writer.h"
#include "tool_fixture.h"

namespace ostrane {

// The bytes of an icon's stream from numbers.
inline std::string stream(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

// A head whose data box is all of a picture of that many columns and rows.
inline icon_head head_of_size(std::int16_t columns, std::int16_t rows) {
  return {.no_of_rows = static_cast<std::int16_t>(rows - 1),
          .no_of_cols = static_cast<std::int16_t>(columns - 1),
          .col_start = 0,
          .row_start = 0,
          .col_end = columns - 1,
          .row_end = rows - 1};
}

// An icon of that size in one colour.
inline samples::shp_icon plain_icon(std::int16_t columns, std::int16_t rows, std::uint8_t index) {
  samples::picture drawn(columns, rows);
  for (int y = 0; y < rows; ++y) {
    for (int x = 0; x < columns; ++x) drawn.set(x, y, index);
  }
  return samples::make_icon(drawn);
}

inline std::vector<samples::shp_icon> plain_icons(std::size_t count, std::int16_t columns,
                                                  std::int16_t rows) {
  std::vector<samples::shp_icon> icons;
  for (std::size_t i = 0; i < count; ++i) {
    icons.push_back(plain_icon(columns, rows, static_cast<std::uint8_t>(i % 256)));
  }
  return icons;
}

// A blank icon: its data begins beyond the picture.
inline samples::shp_icon blank_icon(std::int16_t columns, std::int16_t rows) {
  samples::shp_icon icon{.head = head_of_size(columns, rows), .stream = ""};
  icon.head.col_start = columns;
  return icon;
}

// A refused icon: its data begins inside the picture and ends beyond it.
inline samples::shp_icon refused_icon(std::int16_t columns, std::int16_t rows) {
  samples::shp_icon icon{.head = head_of_size(columns, rows), .stream = ""};
  icon.head.row_end = rows;
  return icon;
}

class icon_test : public tool_test {
 protected:
  // Opens an archive with the icon files and shows the first one.
  void show(const std::vector<std::vector<samples::shp_icon>>& files) {
    std::vector<entry> entries;
    for (const auto& file : files) {
      entries.push_back(
          {"F" + std::to_string(entries.size() + 1) + ".SHP", samples::shp_file(file)});
    }
    entries.push_back({"N.TXT", "note"});
    open_archive(entries);
    click_row("F1.SHP");
  }

  static platform::picture_box& slot(std::int32_t index) { return Form1.s16_image(index); }

  // The slots on the screen, from the first to the last.
  static std::vector<std::int32_t> shown_slots() {
    std::vector<std::int32_t> shown;
    for (std::int32_t i = 0; i < Form1.s16_image.loaded(); ++i) {
      if (slot(i).Visible()) shown.push_back(i);
    }
    return shown;
  }
};

// A palette in which the blue of a colour tells its index.
inline entry palette_entry() {
  std::string colours(1024, '\0');
  for (std::size_t i = 0; i < 256; ++i) colours[4 * i] = static_cast<char>(i);
  return {"GAME.PAL", colours};
}

}  // namespace ostrane
