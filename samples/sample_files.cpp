#include "sample_files.h"

#include "chime.h"
#include "crests.h"
#include "data/icon_packer.h"
#include "game_palette.h"
#include "gems.h"
#include "rocket.h"
#include "texts.h"
#include "tiles.h"
#include "vistas.h"
#include "worlds.h"

namespace ostrane::samples {
namespace {

// A good icon, one whose data starts outside the picture (shown blank), one whose data ends outside
// (refused), and a good one.
std::string odd_icons() {
  std::vector<shp_icon> icons(4, make_icon(barren_world(64)));
  icons[1].head.col_start = icons[1].head.no_of_cols + 1;
  icons[2].head.row_end = icons[2].head.no_of_rows + 1;
  icons[3] = make_icon(barren_world(96));
  return shp_file(icons);
}

// The offset of the second icon is far before the start of the file.
std::string lost_icon() {
  std::string file = shp_file({barren_world(64), barren_world(64)});
  file[shp_head_size + shp_dir_entry_size + 3] = '\xC0';
  return file;
}

}  // namespace

std::vector<archive_entry> sample_files() {
  return {
      {"000DATUP.000", data_text()},
      {"ALMANAC.TXT", almanac_text()},
      {"CHIME.WAV", chime()},
      {"CREST.SHP", shp_file(crest_collection())},
      {"GAME.PAL", game_palette()},
      {"GEMS.SHP", shp_file(gem_collection())},
      {"GUIDE.TXT", guide_text()},
      {"LOST.SHP", lost_icon()},
      {"ODDITY.SHP", odd_icons()},
      {"PLANET.SHP", shp_file(turning_world())},
      {"ROCKET.SHP", shp_file(rising_rocket())},
      {"TILES.SHP", shp_file(land_tiles())},
      {"VISTA.SHP", shp_file(day_of_vistas())},
      {"WORLDS.SHP", shp_file(world_gallery())},
  };
}

}  // namespace ostrane::samples
