#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "data/export_output.h"
#include "data/game_palette.h"
#include "data/shp_format.h"

// Export of the icons of an icon file to the formats of other programs.
namespace ostrane {

enum class picture_form {
  png,      // a PNG for each icon, and a JSON
  sheet,    // one PNG, and a JSON
  gif,      // an animation
  picture,  // one PNG of one icon
};

struct icon_export {
  std::string entry = {};  // name of the icon file
  std::int32_t start = 0;  // archive offset of its first byte
  std::int32_t end = 0;    // archive offset after its last byte
  rgb_palette colours = {};

  picture_form form = picture_form::png;
  std::u8string stem = {};  // prefix of the file names
  int pace = 10;            // hundredths of a second per picture
  int scale = 1;            // pixels per cell
  // The range of icons, 1-based and inclusive.
  std::size_t first = 1;
  std::size_t last = max_icons_per_file;

  // Called with the reason for each icon that is skipped or not exact.
  std::function<void(const std::string& reason)> on_fault = {};
  // Called before each icon; may be null.
  std::function<void(std::size_t number, std::size_t count)> on_icon = {};
};

// Throws data_error if no icon can be exported, and what write_export throws. Writes nothing if one
// of the files cannot be replaced.
using icon_exporter = void (*)(export_output& output, const icon_export& wanted);

// Returns the names of the files that an export of the icons up to number `last` can write.
std::vector<std::u8string> exported_files(picture_form form, const std::u8string& stem,
                                          std::size_t first, std::size_t last);

// Returns the name of an entry without its last four characters, the extension. Names of at most
// four characters are returned unchanged.
std::string stem_of_entry(const std::string& name);

// Returns "GEMS-0001.png" for the stem "GEMS" and 1.
std::u8string png_name(const std::u8string& stem, std::size_t number);

}  // namespace ostrane
