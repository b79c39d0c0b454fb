#include "crests.h"
#include "gems.h"
#include "icon_fixture.h"
#include "rocket.h"
#include "tiles.h"
#include "vistas.h"
#include "worlds.h"

namespace ostrane {
namespace {

using pictures = std::vector<samples::picture>;

// Cells of a slot that differ from the picture that was drawn.
int wrong_cells(const platform::picture_box& slot, const samples::picture& drawn) {
  if (slot.columns() != drawn.columns() || slot.rows() != drawn.rows()) return -1;
  int wrong = 0;
  for (int row = 0; row < drawn.rows(); ++row) {
    for (int column = 0; column < drawn.columns(); ++column) {
      const platform::colour there = slot.pixel(column, row);
      const std::int16_t index = drawn.at(column, row);
      const bool right = index == samples::picture::unset
                             ? there == platform::picture_box::unset
                             : there == tool_state.colour_table[static_cast<std::size_t>(index)];
      if (!right) ++wrong;
    }
  }
  return wrong;
}

// The sample archive as its user opens it.
using sample_test = icon_test;

TEST_F(sample_test, SlotsHoldThePicturesAsDrawn) {
  const std::pair<const char*, pictures> cases[] = {
      {"CREST.SHP", samples::crest_collection()}, {"GEMS.SHP", samples::gem_collection()},
      {"PLANET.SHP", samples::turning_world()},   {"ROCKET.SHP", samples::rising_rocket()},
      {"TILES.SHP", samples::land_tiles()},       {"VISTA.SHP", samples::day_of_vistas()},
      {"WORLDS.SHP", samples::world_gallery()},
  };
  platform::set_drives({{'C', "sample", SAMPLE_FOLDER}}, "C:\\");
  open_archive();
  for (const auto& [name, collection] : cases) {
    click_row(name);
    std::int32_t number = 0;
    for (const samples::picture& drawn : collection) {
      if (++number == Form1.s16_image.loaded() || !slot(number).Visible()) {
        user::click(Form1.Command6);
        number = 1;
      }
      EXPECT_TRUE(slot(number).Visible()) << name << " " << Form1.Text3.Text();
      EXPECT_EQ(wrong_cells(slot(number), drawn), 0) << name << " " << number;
    }
    EXPECT_EQ(Form1.Text2.Text(), std::to_string(collection.size())) << name;
  }
}

}  // namespace
}  // namespace ostrane
