#pragma once

#include "data/icon_packer.h"
#include "tool_fixture.h"

namespace ostrane {

inline std::string stream(std::initializer_list<int> bytes) { return {bytes.begin(), bytes.end()}; }

// An icon in one colour.
inline shp_icon plain_icon(int columns, int rows, std::uint8_t index) {
  picture drawn(columns, rows);
  for (int cell = 0; cell < columns * rows; ++cell)
    drawn.set(cell % columns, cell / columns, index);
  return make_icon(drawn);
}

inline std::vector<shp_icon> plain_icons(std::size_t count, int columns, int rows) {
  std::vector<shp_icon> icons;
  for (std::uint8_t i = 0; icons.size() < count; ++i) icons.push_back(plain_icon(columns, rows, i));
  return icons;
}

// A blank icon: its data begins beyond the picture.
inline shp_icon blank_icon(int columns, int rows) {
  shp_icon icon = plain_icon(columns, rows, 1);
  icon.head.col_start = columns;
  return icon;
}

// A refused icon: its data begins inside the picture and ends beyond it.
inline shp_icon refused_icon(int columns, int rows) {
  shp_icon icon = plain_icon(columns, rows, 1);
  icon.head.row_end = rows;
  return icon;
}

// A palette in which the blue component of each colour is its index.
inline entry palette_entry() {
  std::string colours(1024, '\0');
  for (std::size_t i = 0; i < 256; ++i) colours[4 * i] = static_cast<char>(i);
  return {"GAME.PAL", colours};
}

struct icon_test : tool_test {
  // Opens an archive with the icon files and shows the first one.
  static void show(const std::vector<std::vector<shp_icon>>& files) {
    std::vector<entry> entries = {palette_entry(), {"N.TXT", "text"}};
    for (const auto& file : files) {
      const std::string number = std::to_string(entries.size() - 1);
      entries.push_back({"F" + number + ".SHP", shp_file(file)});
    }
    open_archive(entries);
    click_row("F1.SHP");
  }

  static void type_max_icons(const char* text) {
    user::type(Form1.Text5, text);
    user::focus(&Form1.List1);
  }

  static forms_layer::picture_box& slot(std::int32_t index) { return Form1.s16_image(index); }

  // The palette index of a pixel of a slot, or "." if it is unset.
  static std::string cell(std::int32_t index, std::int32_t column, std::int32_t row) {
    const forms_layer::colour colour = slot(index).pixel(column, row);
    if (colour == forms_layer::picture_box::unset) return ".";
    return std::to_string(forms_layer::blue_of(colour));
  }

  // What is said of each visible slot.
  static std::string of_slots(const std::function<std::string(std::int32_t index)>& said) {
    std::string text;
    for (std::int32_t i = 0; i < Form1.s16_image.loaded(); ++i) {
      if (slot(i).Visible()) text += " " + said(i);
    }
    return text;
  }
  // The number of icons, those of the series, and the visible slots with their first pixels.
  static std::string view() {
    const auto pixel = [](auto i) { return std::to_string(i) + "=" + cell(i, 0, 0); };
    return Form1.Text2.Text() + ":" + Form1.Text3.Text() + ":" + of_slots(pixel);
  }
  // The positions of the visible slots.
  static std::string positions() {
    return of_slots([](auto i) {
      return std::to_string(slot(i).Left()) + "," + std::to_string(slot(i).Top());
    });
  }
};

}  // namespace ostrane
