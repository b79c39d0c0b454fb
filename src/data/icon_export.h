#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "data/game_palette.h"
#include "data/shp_format.h"
#include "files/binary_file.h"

// How to export the icons of an icon file to formats of other programs. Names are in UTF-8.
namespace ostrane {

enum class picture_form {
  png,      // a PNG for each icon, and a JSON
  sheet,    // one PNG, and a JSON
  gif,      // the motion
  picture,  // one PNG of one icon
};

struct icon_export {
  std::string entry = {};  // its name
  std::int32_t start = 0;  // its first byte in the archive
  std::int32_t end = 0;    // after its last byte
  colour_table colours = {};

  picture_form form = picture_form::png;
  std::string stem = {};  // the beginning of the file names
  int pace = 10;          // hundredths of a second for each picture
  int scale = 1;          // pixels per cell
  // Numbers of icons, from 1.
  std::size_t first = 1;
  std::size_t last = max_icons_per_file;

  std::function<files::file_path(const std::string& name)> target = {};
  // Called with the reason for each skipped icon, and for each loss of exactness.
  std::function<void(const std::string& reason)> on_skipped = {};
  // Called for each icon; may be null.
  std::function<void(std::size_t number, std::size_t count)> on_icon = {};
};

// Reads the icons from an open archive and writes the files, each completely or not at all. Throws
// data_error if no icon can be exported, and file_error.
using icon_exporter = void (*)(files::binary_file& archive, const icon_export& wanted);

// The name of an entry without its extension of four characters, unless nothing would be left.
std::string stem_of_entry(const std::string& name);

// "GEMS-0001.png"
std::string png_name(const std::string& stem, std::size_t number);

}  // namespace ostrane
