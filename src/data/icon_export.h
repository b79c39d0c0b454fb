#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "data/game_palette.h"
#include "data/shp_format.h"
#include "files/binary_file.h"

// What is to become of the icons of an icon file in the formats of other programs. Names are in
// UTF-8.
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
  std::string stem = {};  // what the names of the files begin with
  int pace = 10;          // hundredths of a second for each picture
  int scale = 1;          // pixels of a cell
  // Numbers of icons, from 1.
  std::size_t first = 1;
  std::size_t last = max_icons_per_file;

  std::function<files::file_path(const std::string& name)> target = {};
  // Called with the reason for each icon that is left out, and for what is not exact.
  std::function<void(const std::string& reason)> on_skipped = {};
  // Called for each icon; may be null.
  std::function<void(std::size_t number, std::size_t count)> on_icon = {};
};

// Reads the icons from an open archive and writes the files, each whole or not at all. Throws
// data_error if nothing can be made of the icons, and file_error.
using icon_exporter = void (*)(files::binary_file& archive, const icon_export& wanted);

// The name of an entry without its ending of four characters, if more than that is left.
std::string stem_of_entry(const std::string& name);

// "GEMS-0001.png"
std::string png_name(const std::string& stem, std::size_t number);

}  // namespace ostrane
