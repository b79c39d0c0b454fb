#include "recording_screen.h"
#include "shp_writer.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using messages = std::vector<std::string>;
using samples::picture;

constexpr const char* unknown_kind =
    "This is not a shp image, I haven't got to display this yet... ";

// An icon file of one-pixel icons.
std::string dots(std::size_t count) {
  std::vector<picture> pictures(count, picture(1, 1));
  for (picture& p : pictures) p.set(0, 0, 7);
  return samples::shp_file(pictures);
}

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
                {"GAME.PAL", std::string(1024, '\1')},
                {"N.TXT", "note"},
                {" 000DATUP.000", "data"},
                {"000datup.000", "data"},
                {"X.WAV", "noise"},
                {"SHP", "no dot"}});
  const struct {
    const char* name;
    const char* text2;
    const char* text6;  // null while hidden
    bool unknown;
  } cases[] = {
      {"A.SHP", "2", nullptr, false},       {"N.TXT", "2", "note", false},
      {"b.shp", "3", nullptr, false},       {"X.WAV", "3", nullptr, true},
      {" C.ShP ", "4", nullptr, false},     {" 000DATUP.000", "4", "data", false},
      {"000datup.000", "4", nullptr, true}, {"GAME.PAL", "256", nullptr, false},
      {"SHP", "256", nullptr, true},        {"", "256", nullptr, true},
  };
  for (const auto& c : cases) {
    click_row(c.name);
    EXPECT_EQ(Form1.Text2.Text(), c.text2) << c.name;
    EXPECT_EQ(Form1.Text6.Visible(), c.text6 != nullptr) << c.name;
    if (c.text6 != nullptr) {
      EXPECT_EQ(Form1.Text6.Text(), c.text6);
    }
    EXPECT_EQ(new_messages(),
              c.unknown ? messages{std::string(unknown_kind) + c.name} : messages{});
    EXPECT_EQ(tool_state.selected_index, Form1.List1.ListIndex());
  }
  EXPECT_FALSE(Form3.Visible());
}

TEST_F(entry_selection_test, DoubleClicksTellOfAllKindsButIconsAndPalettes) {
  open_archive({{"A.SHP", dots(2)}, {"GAME.PAL", std::string(1024, '\1')}, {"N.TXT", "note"}});
  double_click_row("A.SHP");
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  2");
  double_click_row("GAME.PAL");
  EXPECT_EQ(new_messages(), messages{});
  double_click_row("N.TXT");
  EXPECT_EQ(new_messages(), messages{std::string(unknown_kind) + "N.TXT"});
  EXPECT_TRUE(Form1.Text6.Visible());
}

TEST_F(entry_selection_test, AddsTheFirstDescriptionThatFits) {
  write_icon_names(
      "  ABC01 ; first ; second  \r\n"
      "no separator\r\n"
      "abc01;too late\r\n"
      "\tTAB;tab\r\n"
      ";nameless\r\n"
      "EMPTY;\r\n"
      "E\xC9;accents");
  open_archive({{"ABC01.SHP", dots(1)},
                {"abc01.TXT", ""},
                {"TAB.TXT", ""},
                {"EMPTY.TXT", ""},
                {"A.B.TXT", ""},
                {"e\xE9.TXT", ""},
                {"NODOT", ""}});
  const struct {
    const char* name;
    const char* caption;
  } cases[] = {
      {"ABC01.SHP", "ABC01.SHP - first ; second"},
      {"abc01.TXT", "abc01.TXT - first ; second"},
      {"TAB.TXT", "TAB.TXT"},
      {"EMPTY.TXT", "EMPTY.TXT - "},
      {"A.B.TXT", "A.B.TXT"},
      {"e\xE9.TXT", "e\xE9.TXT - accents"},
      {"NODOT", "NODOT - "},  // row 2 is blank
      {"", " - "},
  };
  for (const auto& c : cases) {
    click_row(c.name);
    EXPECT_EQ(Form1.Frame1.Caption(), c.caption);
  }
}

TEST_F(entry_selection_test, CountsTheLinesOfTheIconNames) {
  std::string many;
  for (int i = 0; i < 32005; ++i) many += "N" + std::to_string(i + 1) + ";d\r\n";
  const struct {
    std::string lines;
    std::int16_t count;
  } cases[] = {{"", 1}, {"one;1", 1}, {"a;1\r\n\r\nc;3\r\n", 3}, {many, 32000}};
  for (const auto& c : cases) {
    write_icon_names(c.lines);
    EXPECT_EQ(tool_state.icon_name_count, c.count);
  }
  EXPECT_EQ(tool_state.icon_names[32000].name, "N32000");
}

TEST_F(entry_selection_test, ShowsTextsWhole) {
  const std::string long_text = some_bytes(40000);
  std::string shown = long_text;
  for (char& c : shown) c = c == '\0' ? ' ' : c;
  open_archive({{"EMPTY.TXT", ""}, {"LONG.TXT", long_text}, {"A.TXT", std::string("a\0b\r\n", 5)}});
  click_row("LONG.TXT");
  EXPECT_EQ(Form1.Text6.Text(), shown);
  click_row("A.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "a b\r\n");
  EXPECT_EQ(Form3.Caption(), "This is just to let you know, I'm working...");
  EXPECT_FALSE(Form3.Visible());
  click_row("EMPTY.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "");
  EXPECT_TRUE(Form1.Text6.Visible());
}

struct text_watch : recording_screen {
  int writes = 0;
  void control_changed(platform::control& changed, platform::aspect what) override {
    if (&changed == &Form1.Text6 && what == platform::aspect::text) ++writes;
  }
};

TEST_F(entry_selection_test, ShowsALongTextInOnePieceAndUpTo16MiB) {
  constexpr std::int32_t size = 17 << 20;
  write("C:\\ostrane.dat", index_bytes(2, {{38, "A.TXT"}, {38 + size, ""}}));
  std::filesystem::resize_file(place("C:\\ostrane.dat"), 38 + size);
  open_archive();
  text_watch screen;
  click_row("A.TXT");
  EXPECT_TRUE(Form1.Text6.Text() == std::string(16U << 20U, ' '));
  EXPECT_EQ(screen.writes, 1);
}

TEST_F(entry_selection_test, ShowsOfABadlyPlacedTextWhatThereIs) {
  const std::int32_t data = 4 + 17 * 6;
  open_bytes(index_bytes(6, {{data, "A.TXT"},
                             {data + 500, "B.TXT"},
                             {-9, "C.TXT"},
                             {data + 2, "D.TXT"},
                             {2147483647, "E.TXT"},
                             {-2147483647 - 1, ""}}) +
             "hello");
  for (const auto& [name, text] : {std::pair{"A.TXT", "hello"},
                                   {"B.TXT", ""},
                                   {"C.TXT", ""},
                                   {"D.TXT", "llo"},
                                   {"E.TXT", ""}}) {
    click_row(name);
    EXPECT_EQ(Form1.Text6.Text(), text) << name;
  }
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
  EXPECT_EQ(Form1.Text2.Text(), "256");
  EXPECT_EQ(Form1.Text3.Text(), "palette 0 - 255");
  EXPECT_EQ(tool_state.slots_loaded, 256);
  const struct {
    std::int32_t index, left, top;
  } places[] = {{0, 440, 800}, {15, 7040, 800}, {16, 440, 1100}, {255, 7040, 5300}};
  for (const auto& p : places) {
    const platform::picture_box& swatch = Form1.s16_image(p.index + 1);
    EXPECT_EQ(swatch.Left(), p.left);
    EXPECT_EQ(swatch.Top(), p.top);
    EXPECT_EQ(swatch.Width(), 400);
    EXPECT_EQ(swatch.Height(), 260);
    EXPECT_TRUE(swatch.Visible());
  }
  EXPECT_EQ(Form1.s16_image(18).BackColor(), platform::rgb(232, 228, 136));
  EXPECT_EQ(Form1.s16_image(18).ToolTipText(), "Palette #  17 : (red= 232, green= 228, blue= 136)");
}

TEST_F(entry_selection_test, IconsAndSwatchesLeaveNothingToEachOther) {
  open_archive(
      {{"MANY.SHP", dots(300)}, {"GAME.PAL", std::string(1024, '\1')}, {"A.SHP", dots(1)}});
  click_row("MANY.SHP");
  user::click(Form1.Command5);
  EXPECT_TRUE(Form1.Timer1.Enabled());
  click_row("GAME.PAL");
  EXPECT_FALSE(Form1.Timer1.Enabled());
  EXPECT_EQ(Form1.s16_image(1).pixels(), nullptr);
  EXPECT_FALSE(Form1.s16_image(257).Visible());
  EXPECT_EQ(Form1.s16_image(257).Width(), 100);
  click_row("A.SHP");
  EXPECT_FALSE(Form1.s16_image(2).Visible());
  EXPECT_EQ(Form1.s16_image(2).ToolTipText(), icon_tool_tip);
  EXPECT_EQ(Form1.s16_image(1).BackColor(), platform::system_button_face);
  EXPECT_EQ(tool_state.slots_loaded, 300);
}

}  // namespace
}  // namespace ostrane
