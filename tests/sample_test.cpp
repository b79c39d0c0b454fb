#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "crests.h"
#include "forms/forms.h"
#include "game_palette.h"
#include "gems.h"
#include "handlers/start_up.h"
#include "platform/drives.h"
#include "platform/message_box.h"
#include "platform/user.h"
#include "rocket.h"
#include "tiles.h"
#include "vistas.h"
#include "worlds.h"

namespace ostrane {
namespace {

// The sample archive as its user opens it.
class sample_test : public testing::Test {
 protected:
  sample_test() {
    platform::set_drives({{'C', "sample", SAMPLE_FOLDER}}, "C:\\");
    begin_tool("C:\\");
    platform::user::click(Form1.mnu_open);
    platform::user::click(Form2.Command1);
  }
  ~sample_test() override { platform::set_drives({}); }

  // The entry must be there; -1 fails the test that asked.
  static std::int32_t row_of(const std::string& name) {
    for (std::int32_t row = 0; row < Form1.List1.ListCount(); ++row) {
      if (Form1.List1.List(row) == name) return row;
    }
    ADD_FAILURE() << "no entry " << name;
    return -1;
  }

  static void select(const std::string& name) {
    platform::forget_messages();
    platform::user::select_row(Form1.List1, row_of(name));
  }
};

std::vector<platform::colour> game_colours() {
  const std::string bytes = samples::game_palette();
  const auto byte = [&](std::size_t at) { return static_cast<std::uint8_t>(bytes.at(at)); };
  std::vector<platform::colour> colours;
  for (std::size_t i = 0; i < 256; ++i) {
    colours.push_back(platform::rgb(byte(4 * i + 2), byte(4 * i + 1), byte(4 * i)));
  }
  return colours;
}

// Cells of a slot that differ from the picture that was drawn.
int wrong_cells(const platform::picture_box& slot, const samples::picture& drawn) {
  static const std::vector<platform::colour> colours = game_colours();
  if (slot.columns() != drawn.columns() || slot.rows() != drawn.rows()) return -1;
  int wrong = 0;
  for (int row = 0; row < drawn.rows(); ++row) {
    for (int column = 0; column < drawn.columns(); ++column) {
      const platform::colour expected =
          drawn.is_set(column, row) ? colours[static_cast<std::size_t>(drawn.at(column, row))]
                                    : platform::picture_box::unset;
      if (slot.pixel(column, row) != expected) ++wrong;
    }
  }
  return wrong;
}

TEST_F(sample_test, ShowsBothMessagesAboutBadIcons) {
  for (const auto& [name, start] :
       {std::pair{"LOST.SHP", "The adress of the file: LOST.SHP is invalid."},
        {"ODDITY.SHP", "Something is rotten in the state of Denmark"}}) {
    select(name);
    ASSERT_EQ(platform::messages_shown().size(), 1U) << name;
    EXPECT_EQ(platform::messages_shown().front().rfind(start, 0), 0U) << name;
  }
}

TEST_F(sample_test, TextsShowInTheCodePageOfTheArchive) {
  select("GUIDE.TXT");
  EXPECT_NE(Form1.Text6.Text().find("\x93quotes\x94, dashes \x96 and \x97"), std::string::npos);
}

TEST_F(sample_test, SlotsHoldThePicturesAsDrawn) {
  const struct {
    std::string name;
    std::vector<samples::picture> pictures;
  } cases[] = {
      {"CREST.SHP", samples::crest_collection()}, {"GEMS.SHP", samples::gem_collection()},
      {"PLANET.SHP", samples::turning_world()},   {"ROCKET.SHP", samples::rising_rocket()},
      {"TILES.SHP", samples::land_tiles()},       {"VISTA.SHP", samples::day_of_vistas()},
      {"WORLDS.SHP", samples::world_gallery()},
  };
  for (const auto& c : cases) {
    select(c.name);
    std::int32_t slot = 0;
    for (const auto& drawn : c.pictures) {
      ++slot;
      if (slot == Form1.s16_image.loaded() || !Form1.s16_image(slot).Visible()) {
        platform::user::click(Form1.Command6);
        slot = 1;
      }
      EXPECT_TRUE(Form1.s16_image(slot).Visible()) << c.name << " " << Form1.Text3.Text();
      EXPECT_EQ(wrong_cells(Form1.s16_image(slot), drawn), 0) << c.name << " " << slot;
    }
    EXPECT_EQ(Form1.Text2.Text(), std::to_string(c.pictures.size())) << c.name;
  }
}

}  // namespace
}  // namespace ostrane
