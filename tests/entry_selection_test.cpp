#include "handlers/entry_details.h"
#include "icon_fixture.h"

using namespace ostrane;

static std::string dots(std::size_t count) { return shp_file(plain_icons(count, 1, 1)); }

static void write_icon_names(const std::string& lines) {
  write("C:\\program\\iconlist.csv", lines);
  restart();
}

using entry_selection_test = icon_test;

// The name, what a click and a double click show, and the number of messages about an unknown kind.
TEST_F(entry_selection_test, ShowsEachKindByItsExtension) {
  const std::vector<entry> entries = {
      {" A.ShP ", dots(2)},      {"b.shp", dots(3)},       palette_entry(),  {"N.TXT", "text"},
      {" 000DATUP.000", "data"}, {"000datup.000", "data"}, {"SHP", "no dot"}};
  open_archive(entries);
  const std::tuple<const char*, const char*, std::size_t> cases[] = {
      {" A.ShP ", "2 1 -  2", 0}, {"N.TXT", "2text", 1},
      {"b.shp", "3 1 -  3", 0},   {" 000DATUP.000", "3data", 1},
      {"000datup.000", "3", 2},   {"GAME.PAL", "256", 0},
      {"SHP", "256", 2},          {"", "256", 2},
  };
  for (const auto& [name, shown, messages] : cases) {
    click_row(name);
    std::string seen = Form1.Text2.Text();
    if (Form1.Text6.Visible()) seen += Form1.Text6.Text();
    EXPECT_EQ(tool_state.selected_index, Form1.List1.ListIndex());
    Form1.Text3.Text = "";
    user::double_click(Form1.List1, tool_state.selected_index);
    EXPECT_EQ(seen + Form1.Text3.Text(), shown);
    const std::string unknown = "This is not a shp image, I haven't got to display this yet... ";
    EXPECT_EQ(new_messages(), texts(messages, unknown + name));
  }
}

TEST_F(entry_selection_test, AddsTheFirstMatchOf32000Descriptions) {
  write_icon_names(
      "  ABC01 ; first ; second  \r\nno separator\r\nabc01;too late\r\n\tTAB;tab\r\n;nameless\r\n"
      "EMPTY;\r\nE\xC9;accents");
  const std::pair<std::string, const char*> cases[] = {
      {"ABC01.SHP", " - first ; second"},
      {"abc01.TXT", " - first ; second"},
      {"TAB.TXT", ""},
      {"EMPTY.TXT", " - "},
      {"e\xE9.TXT", " - accents"},
      {"NODOT", " - "},  // row 2 is blank
      {"", " - "},
  };
  texts names;
  for (const auto& [name, added] : cases) names.push_back(name);
  open_names(names);
  for (const auto& [name, added] : cases) {
    click_row(name);
    EXPECT_EQ(Form1.Frame1.Caption(), name + added);
  }
  std::string many;
  for (int i = 1; i <= 32005; ++i) many += "N" + std::to_string(i) + ";d\r\n";
  write_icon_names(many);
  EXPECT_EQ(tool_state.icon_names.back().name, "N32000");
}

// At most 2 MiB, with a message.
TEST_F(entry_selection_test, ShowsTheBytesOfATextInsideTheFile) {
  constexpr std::int32_t data = 4 + 17 * 8;
  constexpr std::int32_t zeros = data + 40005;
  constexpr std::int32_t end = zeros + (17 << 20);
  std::string long_text = some_bytes(40000);
  const std::vector<std::pair<std::int32_t, std::string>> records = {
      {data, "A.TXT"},        {data + 5, "LONG.TXT"},   {zeros, "BIG.TXT"},
      {end - 3, "LAST.TXT"},  {end + 500, "AFTER.TXT"}, {-9, "BEFORE.TXT"},
      {INT32_MAX, "FAR.TXT"}, {INT32_MIN, ""}};
  write("C:\\ostrane.dat", index_bytes(8, records) + std::string("a\0b\r\n", 5) + long_text);
  fs::resize_file(disk_path("C:\\ostrane.dat"), end);
  open_archive();
  std::replace(long_text.begin(), long_text.end(), '\0', ' ');
  const std::pair<const char*, std::string> cases[] = {
      {"LONG.TXT", long_text}, {"A.TXT", "a b\r\n"}, {"BIG.TXT", std::string(1 << 21, ' ')},
      {"LAST.TXT", "   "},     {"AFTER.TXT", ""},    {"BEFORE.TXT", ""},
      {"FAR.TXT", ""},
  };
  for (const auto& [name, text] : cases) {
    click_row(name);
    EXPECT_TRUE(Form1.Text6.Visible() && Form1.Text6.Text() == text) << name;
  }
  EXPECT_EQ(new_messages(),
            texts{"This text has 17825789 bytes. Only the first 2097152 of them are shown."});
}

// An offset of 0 is no palette. The checksum is that of the 256 built-in colours.
TEST_F(entry_selection_test, ShowsTheBuiltInColoursAsSwatches) {
  open_bytes(index_bytes(2, {{0, "GAME.PAL"}, {38, ""}}) + some_bytes(1024));
  click_row("GAME.PAL");
  EXPECT_EQ(Form1.Text2.Text() + Form1.Text3.Text(), "256palette 0 - 255");
  std::uint32_t sum = 0;
  for (std::int32_t i = 0; i < 256; ++i) {
    const forms_layer::picture_box& swatch = Form1.s16_image(i + 1);
    EXPECT_TRUE(swatch.Visible() && swatch.Width() == 400 && swatch.Height() == 260) << i;
    EXPECT_EQ(swatch.Left() - 440, 440 * (i % 16));
    EXPECT_EQ(swatch.Top() - 800, 300 * (i / 16));
    sum = 31 * sum + swatch.BackColor();
  }
  EXPECT_EQ(sum, 0xDCE76EF8);
}

TEST_F(entry_selection_test, IconsAndSwatchesResetTheSlots) {
  std::string colours(1024, '\0');
  colours.replace(68, 4, "\x88\xE4\xE8z");
  open_archive({{"MANY.SHP", dots(301)}, {"GAME.PAL", colours}, {"A.SHP", dots(1)}});
  click_row("MANY.SHP");
  user::click(Form1.Command5);
  EXPECT_TRUE(Form1.Timer1.Enabled());
  click_row("GAME.PAL");
  EXPECT_FALSE(Form1.Timer1.Enabled() || slot(257).Visible());
  EXPECT_EQ(slot(1).pixels(), nullptr);
  EXPECT_EQ(slot(18).ToolTipText(), "Palette #  17 : (red= 232, green= 228, blue= 136)");
  user::click(Form1.Command6);
  EXPECT_EQ(slot(18).BackColor(), forms_layer::system_button_face);
  click_row("A.SHP");
  EXPECT_FALSE(slot(2).Visible());
  EXPECT_EQ(slot(2).ToolTipText(), icon_tool_tip);
  EXPECT_EQ(tool_state.slots_loaded, 300);
}

TEST_F(entry_selection_test, FindsRowsByNameAndDescription) {
  write_icon_names("n;A green Lake\r\n");
  show({plain_icons(2, 1, 1), plain_icons(1, 1, 1)});  // GAME.PAL, N.TXT, F1.SHP, F2.SHP, end
  const std::pair<const char*, std::vector<std::int32_t>> cases[] = {
      {"shp", {2, 3}}, {"LAKE", {1}}, {"a", {0, 1}}, {"", {}}, {"txtA", {}}, {"zz", {}}};
  for (const auto& [text, rows] : cases) EXPECT_EQ(rows_with(text), rows) << text;
  EXPECT_EQ(entry_tool_tip(1), "N.TXT: 4 bytes at 1113, text");
  EXPECT_EQ(entry_tool_tip(2).substr(0, 7) + entry_tool_tip(2).substr(26), "F1.SHP:icons, 2 icons");
  EXPECT_EQ(entry_tool_tip(4) + entry_tool_tip(-1), "");
  open_archive({{"E.SHP", ""}, {"F.SHP", dots(1)}});
  EXPECT_EQ(entry_tool_tip(0), "E.SHP: 0 bytes at 55, icons") << "has no head";
}
