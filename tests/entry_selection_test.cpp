#include "icon_fixture.h"

namespace ostrane {
namespace {

std::string dots(std::size_t count) { return samples::shp_file(plain_icons(count, 1, 1)); }

const entry palette = {"GAME.PAL", std::string(1024, '\1')};

class entry_selection_test : public tool_test {
 protected:
  void write_icon_names(const std::string& lines) {
    write("C:\\program\\iconlist.csv", lines);
    begin();
  }
};

TEST_F(entry_selection_test, ShowsEachKindByItsExtension) {
  open_archive({{"A.SHP", dots(2)},
                {"b.shp", dots(3)},
                {" C.ShP ", dots(4)},
                palette,
                {"N.TXT", "note"},
                {" 000DATUP.000", "data"},
                {"000datup.000", "data"},
                {"X.WAV", "noise"},
                {"SHP", "no dot"}});
  const struct {
    const char* name;
    const char* seen;          // the number of pictures, and the text
    const char* redrawn;       // by a double click
    std::size_t click, twice;  // messages that the kind is not known
  } cases[] = {
      {"A.SHP", "2", " 1 -  2", 0, 0},   {"N.TXT", "2 note", "", 0, 1},
      {"b.shp", "3", " 1 -  3", 0, 0},   {"X.WAV", "3", "", 1, 1},
      {" C.ShP ", "4", " 1 -  4", 0, 0}, {" 000DATUP.000", "4 data", "", 0, 1},
      {"000datup.000", "4", "", 1, 1},   {"GAME.PAL", "256", "", 0, 0},
      {"SHP", "256", "", 1, 1},          {"", "256", "", 1, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string unknown =
        std::string("This is not a shp image, I haven't got to display this yet... ") + c.name;
    click_row(c.name);
    const std::string text = Form1.Text6.Visible() ? " " + Form1.Text6.Text() : "";
    EXPECT_EQ(Form1.Text2.Text() + text, c.seen);
    EXPECT_EQ(new_messages(), texts(c.click, unknown));
    EXPECT_EQ(tool_state.selected_index, Form1.List1.ListIndex());
    Form1.Text3.Text = "";
    user::double_click(Form1.List1, tool_state.selected_index);
    EXPECT_EQ(Form1.Text3.Text(), c.redrawn);
    EXPECT_EQ(new_messages(), texts(c.twice, unknown));
  }
  EXPECT_FALSE(Form3.Visible());
}

TEST_F(entry_selection_test, AddsTheFirstDescriptionThatFits) {
  write_icon_names(
      "  ABC01 ; first ; second  \r\nno separator\r\nabc01;too late\r\n\tTAB;tab\r\n;nameless\r\n"
      "EMPTY;\r\nE\xC9;accents");
  const std::pair<std::string, const char*> cases[] = {
      {"ABC01.SHP", " - first ; second"},
      {"abc01.TXT", " - first ; second"},
      {"TAB.TXT", ""},
      {"EMPTY.TXT", " - "},
      {"A.B.TXT", ""},
      {"e\xE9.TXT", " - accents"},
      {"NODOT", " - "},  // row 2 is blank
      {"", " - "},
  };
  std::vector<entry> entries;
  for (const auto& [name, added] : cases) entries.push_back({name, ""});
  open_archive(entries);
  for (const auto& [name, added] : cases) {
    click_row(name);
    EXPECT_EQ(Form1.Frame1.Caption(), name + added);
  }
}

TEST_F(entry_selection_test, CountsTheLinesOfTheIconNames) {
  std::string many;
  for (int i = 1; i <= 32005; ++i) many += "N" + std::to_string(i) + ";d\r\n";
  const std::pair<std::string, std::int16_t> cases[] = {
      {"", 1}, {"one;1", 1}, {"a;1\r\n\r\nc;3\r\n", 3}, {many, 32000}};
  for (const auto& [lines, count] : cases) {
    write_icon_names(lines);
    EXPECT_EQ(tool_state.icon_name_count, count);
  }
  EXPECT_EQ(tool_state.icon_names[32000].name, "N32000");
}

// At most 16 MiB, and no byte that lies outside the file.
TEST_F(entry_selection_test, ShowsOfATextWhatTheFileHolds) {
  constexpr std::int32_t data = 4 + 17 * 9;
  constexpr std::int32_t zeros = data + 40005;
  constexpr std::int32_t end = zeros + (17 << 20);
  std::string long_text = some_bytes(40000);
  write("C:\\ostrane.dat", index_bytes(9, {{data, "A.TXT"},
                                           {data + 5, "LONG.TXT"},
                                           {zeros, "EMPTY.TXT"},
                                           {zeros, "BIG.TXT"},
                                           {end - 3, "LAST.TXT"},
                                           {end + 500, "BEHIND.TXT"},
                                           {-9, "BEFORE.TXT"},
                                           {INT32_MAX, "FAR.TXT"},
                                           {INT32_MIN, ""}}) +
                               std::string("a\0b\r\n", 5) + long_text);
  std::filesystem::resize_file(place("C:\\ostrane.dat"), end);
  open_archive();
  std::replace(long_text.begin(), long_text.end(), '\0', ' ');
  const std::pair<const char*, std::string> cases[] = {
      {"LONG.TXT", long_text}, {"A.TXT", "a b\r\n"}, {"EMPTY.TXT", ""},
      {"LAST.TXT", "   "},     {"BEHIND.TXT", ""},   {"BIG.TXT", std::string(1 << 24, ' ')},
      {"BEFORE.TXT", ""},      {"FAR.TXT", ""},
  };
  for (const auto& [name, text] : cases) {
    click_row(name);
    EXPECT_TRUE(Form1.Text6.Visible() && Form1.Text6.Text() == text) << name;
  }
  EXPECT_EQ(Form3.Caption(), "This is just to let you know, I'm working...");
  EXPECT_FALSE(Form3.Visible());
  EXPECT_EQ(new_messages(), texts{});
  std::filesystem::remove(place("C:\\ostrane.dat"));
  click_row("A.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "");
  EXPECT_EQ(new_messages().size(), 1U);
}

TEST_F(entry_selection_test, ShowsThePaletteAsSwatches) {
  std::string colours(1024, '\0');
  colours.replace(4 * 17, 4, "\x88\xE4\xE8z");
  open_archive({{"OTHER.PAL", "not read"}, {"GAME.PAL", colours}});
  click_row("OTHER.PAL");
  EXPECT_EQ(Form1.Text2.Text() + Form1.Text3.Text(), "256palette 0 - 255");
  EXPECT_EQ(tool_state.slots_loaded, 256);
  using numbers = std::vector<std::int32_t>;
  const std::pair<std::int32_t, numbers> places[] = {
      {1, {440, 800}}, {16, {7040, 800}}, {17, {440, 1100}}, {256, {7040, 5300}}};
  for (const auto& [slot, at] : places) {
    const platform::picture_box& swatch = Form1.s16_image(slot);
    EXPECT_EQ((numbers{swatch.Left(), swatch.Top()}), at);
    EXPECT_TRUE(swatch.Width() == 400 && swatch.Height() == 260 && swatch.Visible());
  }
  EXPECT_EQ(Form1.s16_image(18).BackColor(), platform::rgb(232, 228, 136));
  EXPECT_EQ(Form1.s16_image(18).ToolTipText(), "Palette #  17 : (red= 232, green= 228, blue= 136)");
}

TEST_F(entry_selection_test, IconsAndSwatchesLeaveNothingToEachOther) {
  open_archive({{"MANY.SHP", dots(300)}, palette, {"A.SHP", dots(1)}});
  const auto slot = [](std::int32_t number) -> auto& { return Form1.s16_image(number); };
  click_row("MANY.SHP");
  user::click(Form1.Command5);
  EXPECT_TRUE(Form1.Timer1.Enabled());
  click_row("GAME.PAL");
  EXPECT_FALSE(Form1.Timer1.Enabled() || slot(257).Visible());
  EXPECT_EQ(slot(1).pixels(), nullptr);
  EXPECT_EQ(slot(257).Width(), 100);
  click_row("A.SHP");
  EXPECT_FALSE(slot(2).Visible());
  EXPECT_EQ(slot(2).ToolTipText(), icon_tool_tip);
  EXPECT_EQ(slot(1).BackColor(), platform::system_button_face);
  EXPECT_EQ(tool_state.slots_loaded, 300);
}

}  // namespace
}  // namespace ostrane
