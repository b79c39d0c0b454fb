#include "icon_fixture.h"
#include "icons/place_icon_slot.h"
#include "icons/slots.h"

namespace ostrane {
namespace {

using samples::shp_icon;
using messages = std::vector<std::string>;
using slots = std::vector<std::int32_t>;

constexpr const char* rotten =
    "Something is rotten in the state of Denmark - fileformat has errors, icon is not displayed. ";

class series_test : public icon_test {
 protected:
  // Icons that do not fit the frame, for a series that its bottom ends.
  static std::vector<shp_icon> large(std::size_t count) { return plain_icons(count, 200, 200); }

  static void type_max_icons(const char* text) {
    user::type(Form1.Text5, text);
    user::focus(&Form1.List1);
  }

  // An icon file of `icons` whose directory gives the offset of icon `n`, from 1, as `offset`.
  static std::string with_offset(const std::vector<shp_icon>& icons, std::size_t n,
                                 std::int32_t offset) {
    std::string bytes = samples::shp_file(icons);
    for (std::size_t i = 0; i < 4; ++i) {
      bytes[8 * n + i] = static_cast<char>(static_cast<std::uint32_t>(offset) >> 8U * i);
    }
    return bytes;
  }

  static std::string with_count(std::string bytes, std::int32_t count) {
    for (std::size_t i = 0; i < 4; ++i) {
      bytes[4 + i] = static_cast<char>(static_cast<std::uint32_t>(count) >> 8U * i);
    }
    return bytes;
  }

  static std::string invalid_address(const char* name, const char* number) {
    return std::string("The adress of the file: ") + name +
           " is invalid. Start offset for the shp-file is: " + number +
           ", the picture is not displayed.";
  }
};

TEST_F(series_test, DrawsAFileThatFitsWhole) {
  show({plain_icons(57, 1, 1)});
  EXPECT_EQ(Form1.Text2.Text(), "57");
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  57");
  EXPECT_EQ(shown_slots().size(), 57U);
  EXPECT_EQ(tool_state.slots_loaded, 57);
  EXPECT_FALSE(Form3.Visible());
  EXPECT_FALSE(Form3.ProgressBar1.Visible() || Form3.Label2.Visible());
  EXPECT_EQ(slot(1).Left(), 200);
  EXPECT_EQ(slot(1).Top(), 800);
  EXPECT_EQ(slot(2).Left(), 260);
  EXPECT_EQ(slot(57).pixel(0, 0), tool_state.colour_table[56]);
  EXPECT_EQ(slot(57).BackColor(), platform::system_button_face);
  Form1.Text2.Text = "untouched";
  user::click(Form1.Command6);
  EXPECT_EQ(Form1.Text2.Text(), "untouched");
  EXPECT_EQ(shown_slots().size(), 57U);
}

TEST_F(series_test, GoesOnBehindTheLastSeries) {
  type_max_icons("30");
  show({plain_icons(70, 1, 1)});
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  30");
  user::click(Form1.Command6);
  EXPECT_EQ(Form1.Text3.Text(), " 31 -  60");
  EXPECT_EQ(slot(1).pixel(0, 0), tool_state.colour_table[30]);
  user::click(Form1.Command6);
  EXPECT_EQ(Form1.Text3.Text(), " 61 -  70");
  EXPECT_EQ(shown_slots().size(), 10U);
  EXPECT_EQ(slot(11).pixels(), nullptr);
  EXPECT_EQ(Form1.Text2.Text(), "70");
  EXPECT_EQ(tool_state.slots_loaded, 30);
}

TEST_F(series_test, TheBottomOfTheFrameEndsASeries) {
  // A slot of 202 pixels is 3030 twips: two a row, and a second row only ends at 800 + 15 + 6060.
  show({large(3)});
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  2");
  EXPECT_EQ(tool_state.slots_drawn, 3);
  EXPECT_EQ(shown_slots(), (slots{1, 2}));
  user::click(Form1.Command6);
  EXPECT_EQ(Form1.Text3.Text(), " 3 -  3");
  EXPECT_EQ(shown_slots(), slots{1});
  user::resize(Form1, 9330, 6690 + 400);
  click_row("F1.SHP");
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  3");
  EXPECT_EQ(slot(3).Left(), 200);
  EXPECT_EQ(slot(3).Top(), 800 + 3030 + 15);
}

// The fit tests are strict: a sum that meets the frame's size does not fit.
TEST_F(series_test, ASlotThatTouchesTheEdgeDoesNotFit) {
  const std::int32_t frame_width = 200 + 2 * (180 + 15);
  const std::int32_t frame_height = 800 + 2 * (180 + 15) - 15;
  const struct {
    std::int32_t wider, higher;
    slots shown;
    std::int32_t left_of_2;
  } cases[] = {
      {0, 0, {1}, 0},
      {0, 1, {1, 2}, 200},
      {1, 0, {1, 2}, 395},
      {1, 1, {1, 2, 3, 4}, 395},
  };
  for (const auto& c : cases) {
    begin();
    user::resize(Form1, frame_width + c.wider + 2100 - 225, frame_height + c.higher + 825 - 705);
    ASSERT_EQ(Form1.Frame1.Width(), frame_width + c.wider);
    ASSERT_EQ(Form1.Frame1.Height(), frame_height + c.higher);
    show({plain_icons(9, 10, 10)});
    EXPECT_EQ(shown_slots(), c.shown) << c.wider << c.higher;
    if (c.shown.size() > 1) {
      EXPECT_EQ(slot(2).Left(), c.left_of_2);
    }
  }
}

TEST_F(series_test, ARowIsAsHighAsItsTallestSlot) {
  show({{plain_icon(200, 10, 1), plain_icon(200, 40, 2), plain_icon(200, 5, 3),
         plain_icon(300, 1, 4)}});
  EXPECT_EQ(slot(2).Top(), 800);
  EXPECT_EQ(slot(3).Top(), 800 + 42 * 15 + 15);
  EXPECT_EQ(slot(4).Top(), 800 + 42 * 15 + 15 + 7 * 15 + 15);
  EXPECT_EQ(slot(1).Width(), 202 * 15);
  EXPECT_EQ(slot(1).Height(), 12 * 15);
}

TEST_F(series_test, AnyLimitShowsAtLeastOneIcon) {
  for (const char* text : {"1", "0", "-5"}) {
    type_max_icons(text);
    show({plain_icons(3, 1, 1)});
    EXPECT_EQ(Form1.Text3.Text(), " 1 -  1") << text;
  }
  type_max_icons("3");
  show({plain_icons(3, 1, 1)});
  Form1.Text2.Text = "";
  user::click(Form1.Command6);
  EXPECT_EQ(Form1.Text2.Text(), "");
}

TEST_F(series_test, BlankAndRefusedIconsKeepTheirNumbers) {
  show({{plain_icon(1, 1, 5), blank_icon(10, 20), refused_icon(3, 4), plain_icon(1, 1, 6)}});
  EXPECT_EQ(new_messages(),
            messages{std::string(rotten) + "\nNo-of-rows =  3\nRow-start =  0\nRow-end =  4"
                                           "\nNo-of-cols =  2\nCol-start =  0\nCol-end =  2"});
  EXPECT_EQ(shown_slots(), (slots{1, 2, 4}));
  EXPECT_EQ(slot(2).Width(), 12 * 15);
  EXPECT_EQ(slot(2).pixels(), nullptr);
  EXPECT_EQ(slot(4).pixel(0, 0), tool_state.colour_table[6]);
  EXPECT_EQ(slot(4).Left(), slot(2).Left() + 12 * 15 + 15);
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  4");
}

// Which outcome a head has, by the four comparisons and by the size that a slot can have.
TEST_F(series_test, JudgesAHead) {
  const auto head = [](std::int16_t rows, std::int16_t cols, std::int32_t col_start,
                       std::int32_t row_start, std::int32_t col_end, std::int32_t row_end) {
    return icon_head{rows, cols, col_start, row_start, col_end, row_end};
  };
  const struct {
    icon_head head;
    char outcome;
  } cases[] = {
      {head(4, 5, 5, 4, 5, 4), 'd'},      {head(4, 5, 0, 0, 6, 0), 'r'},
      {head(4, 5, 0, 0, 0, 5), 'r'},      {head(4, 5, 6, 0, 9, 0), 'b'},
      {head(4, 5, 0, 5, 0, 9), 'b'},      {head(4, 5, 6, 5, 0, 0), 'b'},
      {head(4, 5, 3, 3, 0, 0), 'd'},      {head(4, 5, -9, -9, -1, -1), 'd'},
      {head(0, 0, 0, 0, 0, 0), 'd'},      {head(2181, 0, 0, 0, 0, 0), 'd'},
      {head(2182, 0, 0, 0, 0, 0), 'r'},   {head(0, 2182, 0, 0, 0, 0), 'r'},
      {head(32767, 0, 0, 0, 0, 0), 'r'},  {head(-2, -2, -2, -2, -2, -2), 'd'},
      {head(-3, 0, -3, -3, -3, -3), 'r'}, {head(0, -32768, 0, 0, 0, 0), 'r'},
  };
  for (const auto& c : cases) {
    show({{{.head = c.head, .stream = stream({0})}, plain_icon(1, 1, 9)}});
    const bool refused = new_messages().size() == 1;
    EXPECT_EQ(refused, c.outcome == 'r') << c.head.no_of_rows << " " << c.head.no_of_cols;
    EXPECT_EQ(slot(1).Visible(), !refused);
  }
}

TEST_F(series_test, ARefusedLastIconEndsTheFile) {
  show({{plain_icon(1, 1, 5), refused_icon(1, 1)}});
  EXPECT_EQ(Form1.Text3.Text(), " 1 -  1");
  // The next series has nothing behind it.
  user::click(Form1.Command6);
  EXPECT_EQ(shown_slots(), slots{});
  EXPECT_EQ(tool_state.current_slot, 0);
  EXPECT_EQ(Form1.Text2.Text(), "2");
}

TEST_F(series_test, AnAddressOutsideTheFileStopsTheSeries) {
  const std::vector<shp_icon> icons = plain_icons(3, 1, 1);
  const std::int32_t start = 4 + 17 * 2;
  const struct {
    std::int32_t offset;
    const char* number;
  } cases[] = {
      {-start - 2, "-1"},
      {-start - 1, " 0"},
      {1000, " 1039"},
      {2147483647, " 2147483647"},
      {-2147483647 - 1, "-2147483609"},
  };
  for (const auto& c : cases) {
    open_archive({{" A.SHP", with_offset(icons, 2, c.offset)}});
    click_row(" A.SHP");
    EXPECT_EQ(new_messages(), messages{invalid_address("A.SHP", c.number)});
    EXPECT_EQ(shown_slots(), slots{1});
    EXPECT_EQ(Form1.Text3.Text(), " 1 -  1");
    EXPECT_EQ(Form1.Text2.Text(), "3");
    user::click(Form1.Command6);
    EXPECT_EQ(new_messages(), messages{invalid_address("A.SHP", c.number)});
    EXPECT_EQ(shown_slots(), slots{});
    EXPECT_EQ(Form1.Text3.Text(), " 2 -  0");
  }
}

TEST_F(series_test, ADirectoryThatIsNotThereStopsTheSeries) {
  const std::string file = samples::shp_file(plain_icons(1, 1, 1));
  open_archive({{"A.SHP", with_count(file.substr(0, 8), 7)}, {"B.SHP", "shp"}, {"C.SHP", ""}});
  click_row("B.SHP");
  EXPECT_EQ(new_messages().size(), 1U);
  EXPECT_EQ(Form1.Text2.Text(), "0");
  EXPECT_EQ(shown_slots(), slots{});
  click_row("A.SHP");
  EXPECT_EQ(new_messages().size(), 1U);
  EXPECT_EQ(Form1.Text2.Text(), "7");
  EXPECT_EQ(shown_slots(), slots{});
}

TEST_F(series_test, AnEntryOutsideTheFileHasNoIcons) {
  constexpr std::int32_t least = -2147483647 - 1;
  open_bytes(index_bytes(4, {{-1, "A.SHP"}, {500000, "B.SHP"}, {least, "C.SHP"}, {72, ""}}));
  for (const auto& [name, number] :
       {std::pair{"A.SHP", " 0"}, {"B.SHP", " 500001"}, {"C.SHP", "-2147483647"}}) {
    click_row(name);
    EXPECT_EQ(new_messages(), messages{invalid_address(name, number)});
    EXPECT_EQ(Form1.Text2.Text(), "0");
  }
}

TEST_F(series_test, CountsOutOfReachEndInAnOrderlyWay) {
  const std::string one = samples::shp_file(plain_icons(1, 1, 1));
  for (const std::int32_t count : {0, -1, -2147483647 - 1}) {
    open_archive({{"A.SHP", with_count(one, count)}});
    click_row("A.SHP");
    EXPECT_EQ(new_messages(), messages{});
    EXPECT_EQ(shown_slots(), slots{});
    EXPECT_EQ(Form1.Text2.Text(), std::to_string(count));
    user::click(Form1.Command6);
    EXPECT_EQ(tool_state.slots_loaded, 12);
  }
  open_archive({{"A.SHP", with_count(samples::shp_file(plain_icons(5001, 1, 1)), 5001)}});
  click_row("A.SHP");
  EXPECT_EQ(new_messages(),
            messages{"The file: A.SHP says that it holds 5001 pictures. Only the first 5000 are "
                     "displayed."});
  EXPECT_EQ(Form1.Text2.Text(), "5000");
}

// No file has so many icons, but a series that is told to go on must stop where its table ends.
TEST_F(series_test, ASeriesIsFullAtSlot9999) {
  show({plain_icons(2, 1, 1)});
  tool_state.max_icons = 30000;
  for (std::int16_t next = 13; next <= 9999; ++next) load_slot(next);
  for (const auto& [last, full] : {std::pair{9998, flag_false}, {9999, flag_true}}) {
    tool_state.current_slot = static_cast<std::int16_t>(last);
    tool_state.icon_number = 1;
    tool_state.series_full = flag_false;
    slot(last).Width = 45;
    place_icon_slot();
    EXPECT_EQ(tool_state.series_full, full) << last;
  }
}

TEST_F(series_test, TheFirstSlotIsAlwaysPlaced) {
  show({{plain_icon(900, 900, 1), plain_icon(1, 1, 2)}});
  EXPECT_EQ(shown_slots(), slots{1});
  user::click(Form1.Command6);
  EXPECT_EQ(shown_slots(), slots{1});
  EXPECT_EQ(slot(1).columns(), 1);
}

// After a click on an entry of another kind the next series is that of the icons still in view,
// with the bytes of their entry.
TEST_F(series_test, TheNextSeriesReadsTheEntryThatItsDirectoryCameFrom) {
  type_max_icons("1");
  open_archive({{"A.TXT", ""}, {"F.SHP", samples::shp_file(plain_icons(2, 30, 30))}});
  click_row("F.SHP");
  click_row("A.TXT");
  user::click(Form1.Command6);
  EXPECT_EQ(new_messages(), messages{});
  EXPECT_EQ(slot(1).pixel(29, 29), tool_state.colour_table[1]);
}

// The icons in view have no next series in another archive, nor in one that could not be read.
TEST_F(series_test, ANextSeriesNeverMixesTwoArchives) {
  for (const std::string& other :
       {archive_bytes({{"X.TXT", some_bytes(5000)}}), std::string("?")}) {
    type_max_icons("1");
    show({plain_icons(3, 5, 5)});
    write("C:\\other\\ostrane.dat", other);
    open_archive("C:\\other");
    new_messages();
    user::click(Form1.Command6);
    EXPECT_EQ(new_messages(), messages{});
    EXPECT_EQ(Form1.Text3.Text(), " 1 -  1");
    EXPECT_EQ(slot(1).pixel(4, 4), tool_state.colour_table[0]);
    user::double_click(Form1.s16_image, 1);
    EXPECT_FALSE(Form3.Visible());
  }
}

TEST_F(series_test, AnArchiveThatIsGoneGivesAnEmptySeries) {
  type_max_icons("1");
  show({plain_icons(3, 1, 1)});
  std::filesystem::remove(place("C:\\ostrane.dat"));
  user::click(Form1.Command6);
  EXPECT_EQ(new_messages().size(), 1U);
  EXPECT_EQ(shown_slots(), slots{});
  EXPECT_EQ(Form1.Text2.Text(), "3");
  click_row("F1.SHP");
  EXPECT_EQ(new_messages().size(), 1U);
  EXPECT_EQ(shown_slots(), slots{});
  EXPECT_EQ(Form1.Text2.Text(), "0");
  EXPECT_FALSE(Form3.Visible());
  user::click(Form1.Command5);
  user::tick(Form1.Timer1);
  EXPECT_FALSE(Form1.Timer1.Enabled());
}

}  // namespace
}  // namespace ostrane
