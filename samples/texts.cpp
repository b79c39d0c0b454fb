#include "texts.h"

#include <string_view>

#include "files/code_page.h"

namespace ostrane::samples {
namespace {

constexpr std::string_view guide = R"(WHAT IS IN HERE

Every picture of this archive was computed. Pick an entry on the
left and it shows on the right.

CREST.SHP     21 shields
GEMS.SHP      400 cut stones: more than fit, so press "Next series"
LOST.SHP      the second icon is outside the file
ODDITY.SHP    a good icon, a blank one, a refused one, a good one
PLANET.SHP    32 frames of one turn: press "Start motion"
ROCKET.SHP    16 frames of a rising rocket
TILES.SHP     blocks of land, each with its own margins
VISTA.SHP     one lake at dawn, noon, dusk and night
WORLDS.SHP    planets and moons

GAME.PAL      the 256 colours of all of them
CHIME.WAV     a sound, which the tool does not play

A double click on a picture shows its numbers. Text is code page
1252: “quotes”, dashes – and —, ä ö ü ß, é è ê, ñ, ½, 20 °C, 5 €.
)";

constexpr std::string_view almanac = R"(ALMANAC OF THE WORLDS

name        kind      radius    day      moons
----------------------------------------------
Aurelia     sea       1.00      24 h     1
Brûlant     lava      0.92      61 h     0
Chillon     ice       0.64      30 h     2
Dorado      desert    0.85      19 h     0
Émeraude    gas       3.10      11 h     14
Fjördur     rock      0.27      27 d     -
Gürtel      ringed    8.40      10 h     31

Radius and day are those of Aurelia = 1 and of its own sun.
)";

constexpr std::string_view data = R"(; the number of icons of each entry
crest   = 21
gems    = 400
planet  = 32
rocket  = 16
tiles   = 31
vista   = 4
worlds  = 15
)";

constexpr std::string_view list = R"(000DATUP;How many icons there are
ALMANAC;Seven worlds in a table
CHIME;A bell
CREST;Shields, each with another division
GAME;The colours; sixteen ramps of sixteen shades
GEMS;Cut stones, 25 cuts in 16 colours
GUIDE;What is in this archive
LOST;One good icon and one outside the file
ODDITY;Good, blank, refused, good
PLANET;One turn of a world of seas and clouds
ROCKET;A rocket above its flame
TILES;Blocks of land
VISTA;A lake at dawn, noon, dusk and night
WORLDS;Planets and moons
)";

std::string as_file(std::string_view utf8) {
  std::string bytes;
  for (const char c : files::from_utf8_lossy(files::as_utf8(utf8))) {
    if (c == '\n') bytes += '\r';
    bytes += c;
  }
  return bytes;
}

}  // namespace

std::string guide_text() { return as_file(guide); }
std::string almanac_text() { return as_file(almanac); }
std::string data_text() { return as_file(data); }
std::string icon_list() { return as_file(list); }

}  // namespace ostrane::samples
