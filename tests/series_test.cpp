#include <climits>

#include "icon_fixture.h"
#include "platform/little_endian.h"

namespace ostrane {
namespace {

using messages = std::vector<std::string>;

// `bytes` with another number of 32 bits in one place.
std::string with(std::string bytes, std::size_t at, std::int32_t number) {
  platform::put_int32(std::as_writable_bytes(std::span(bytes)), at, number);
  return bytes;
}

std::string invalid_address(const std::string& number) {
  return "The adress of the file: A.SHP is invalid. Start offset for the shp-file is: " + number +
         ", the picture is not displayed.";
}

class series_test : public icon_test {
 protected:
  static void type_max_icons(const char* text) {
    user::type(Form1.Text5, text);
    user::focus(&Form1.List1);
  }
};

TEST_F(series_test, DrawsAFileThatFitsWhole) {
  show({plain_icons(57, 1, 1)});
  const std::string whole = view();
  EXPECT_EQ(whole.substr(0, 20), "57: 1 -  57: 1=0 2=1");
  EXPECT_TRUE(whole.ends_with(" 57=56"));
  EXPECT_EQ(tool_state.slots_loaded, 57);
  EXPECT_FALSE(Form3.Visible() || Form3.ProgressBar1.Visible() || Form3.Label2.Visible());
  EXPECT_EQ(slot(57).BackColor(), platform::system_button_face);
  user::click(Form1.Command6);
  EXPECT_EQ(view(), whole);
}

// The next series begins behind the last icon on show and may have none of its own.
TEST_F(series_test, ShowsSeriesBehindSeries) {
  const std::vector<shp_icon> seven = plain_icons(7, 1, 1);
  const shp_icon refused = refused_icon(3, 4);
  const std::string first_of_7 = "7: 1 -  1: 1=0";
  const std::string second_of_7 = "7: 2 -  2: 1=1";
  const struct {
    const char* max_icons;
    std::vector<shp_icon> icons;
    messages series;
  } cases[] = {
      {"3", seven, {"7: 1 -  3: 1=0 2=1 3=2", "7: 4 -  6: 1=3 2=4 3=5", "7: 7 -  7: 1=6"}},
      {"1", seven, {first_of_7, second_of_7}},
      {"0", seven, {first_of_7, second_of_7}},
      {"-5", seven, {first_of_7, second_of_7}},
      {"4", {seven[5], blank_icon(9, 2), refused, seven[6]}, {"4: 1 -  4: 1=5 2=. 4=6"}},
      {"1", {seven[5], blank_icon(1, 1)}, {"2: 1 -  1: 1=5", "2: 2 -  2: 1=."}},
      {"4", {seven[5], refused}, {"2: 1 -  1: 1=5", "2: 3 -  0:"}},
      {"9", plain_icons(3, 200, 200), {"3: 1 -  2: 1=0 2=1", "3: 3 -  3: 1=2"}},
      {"9", {plain_icon(900, 900, 1), seven[2]}, {"2: 1 -  1: 1=1", "2: 2 -  2: 1=2"}},
  };
  for (const auto& c : cases) {
    type_max_icons(c.max_icons);
    show({c.icons});
    for (const std::string& expected : c.series) {
      EXPECT_EQ(view(), expected);
      user::click(Form1.Command6);
    }
  }
  EXPECT_EQ(slot(1).columns(), 1);
}

// A slot has a border of one pixel each way; a pixel is 15 twips. A row is as high as its tallest
// slot. A sum that meets the frame's size does not fit.
TEST_F(series_test, PlacesTheSlots) {
  using size = std::pair<std::int32_t, std::int32_t>;
  const std::vector<shp_icon> tens = plain_icons(9, 10, 10);
  constexpr std::int32_t two_columns = 200 + 2 * (180 + 15);
  constexpr std::int32_t two_rows = 800 + 2 * (180 + 15) - 15;
  const std::vector<shp_icon> uneven = {plain_icon(200, 10, 1), blank_icon(150, 40),
                                        plain_icon(90, 20, 2), plain_icon(200, 5, 3),
                                        plain_icon(300, 1, 4)};
  const struct {
    size frame;
    std::vector<shp_icon> icons;
    const char* places;
  } cases[] = {
      {{7455, 6570}, plain_icons(1, 40, 40), " 200,800"},
      {{two_columns, two_rows}, tens, " 200,800"},
      {{two_columns, two_rows + 1}, tens, " 200,800 200,995"},
      {{two_columns + 1, two_rows}, tens, " 200,800 395,800"},
      {{two_columns + 1, two_rows + 1}, tens, " 200,800 395,800 200,995 395,995"},
      {{7455, 6570}, uneven, " 200,800 3245,800 5540,800 200,1445 200,1565"},
  };
  for (const auto& c : cases) {
    const auto& [width, height] = c.frame;
    user::resize(Form1, width + 2100 - 225, height + 825 - 705);
    ASSERT_EQ(size(Form1.Frame1.Width(), Form1.Frame1.Height()), c.frame);
    show({c.icons});
    EXPECT_EQ(places(), c.places);
  }
}

// By the four comparisons of its head, and by the size that a slot can have.
TEST_F(series_test, RefusesIcons) {
  const struct {
    icon_head head;
    bool refused;
  } cases[] = {
      {{4, 5, 5, 4, 5, 4}, false},     {{4, 5, 0, 0, 6, 0}, true},
      {{4, 5, 0, 0, 0, 5}, true},      {{4, 5, 6, 0, 9, 0}, false},
      {{4, 5, 0, 5, 0, 9}, false},     {{4, 5, 3, 3, 0, 0}, false},
      {{4, 5, -9, -9, -1, -1}, false}, {{2181, 0, 0, 0, 0, 0}, false},
      {{2182, 0, 0, 0, 0, 0}, true},   {{0, 2182, 0, 0, 0, 0}, true},
      {{32767, 0, 0, 0, 0, 0}, true},  {{-2, -2, -2, -2, -2, -2}, false},
      {{-3, 0, -3, -3, -3, -3}, true}, {{0, -32768, 0, 0, 0, 0}, true},
  };
  for (const auto& c : cases) {
    show({{{c.head, ""}, plain_icon(1, 1, 9)}});
    EXPECT_EQ(new_messages().size(), c.refused ? 1U : 0U);
    EXPECT_EQ(view(), c.refused ? "2: 1 -  2: 2=9" : "2: 1 -  2: 1=. 2=9");
  }
  show({{{{7, 6, 5, -4, 3, 8}, ""}}});
  EXPECT_EQ(new_messages(), messages{"Something is rotten in the state of Denmark - fileformat has "
                                     "errors, icon is not displayed. \nNo-of-rows =  7\n"
                                     "Row-start = -4\nRow-end =  8\nNo-of-cols =  6\n"
                                     "Col-start =  5\nCol-end =  3"});
}

// What an address leads to, and counts beyond reach.
TEST_F(series_test, WhatIsNotInTheFileEndsTheSeries) {
  const auto archive_with = [](const std::string& icon_file) {
    return archive_bytes({palette_entry(), {" A.SHP", icon_file}});
  };
  const auto archive_of_entry_at = [](std::int32_t offset) {
    return index_bytes(2, {{offset, " A.SHP"}, {38, ""}});
  };
  const std::string three = samples::shp_file(plain_icons(3, 1, 1));
  const std::int32_t start = 4 + 3 * 17 + 1024;
  const auto with_second_at = [&](std::int32_t offset) {
    return archive_with(with(three, 16, offset));
  };
  const auto with_count = [&](std::int32_t count) { return archive_with(with(three, 4, count)); };
  const std::string one_of_3 = "3: 1 -  1: 1=0";
  const struct {
    std::string archive;
    std::string number;  // in the message, if there is one
    std::string view;
  } cases[] = {
      {with_second_at(-start - 2), "-1", one_of_3},
      {with_second_at(-start - 1), " 0", one_of_3},
      {with_second_at(static_cast<std::int32_t>(three.size()) - 23), " 1170", one_of_3},
      {with_second_at(INT_MAX), " 2147483647", one_of_3},
      {with_second_at(INT_MIN), "-2147482568", one_of_3},
      {with_count(0), "", "0: 1 -  0:"},
      {with_count(-1), "", "-1: 1 -  0:"},
      {with_count(INT_MIN), "", "-2147483648: 1 -  0:"},
      {archive_with(with(three, 4, 7).substr(0, 8)), " 0", "7: 1 -  0:"},
      {archive_with("shp"), " 1080", "0: 1 -  0:"},
      {archive_with(""), " 1080", "0: 1 -  0:"},
      {archive_of_entry_at(-1), " 0", "0: 1 -  0:"},
      {archive_of_entry_at(500000), " 500001", "0: 1 -  0:"},
      {archive_of_entry_at(INT_MIN), "-2147483647", "0: 1 -  0:"},
  };
  for (const auto& c : cases) {
    open_bytes(c.archive);
    click_row(" A.SHP");
    const messages told = c.number.empty() ? messages{} : messages{invalid_address(c.number)};
    EXPECT_EQ(new_messages(), told);
    EXPECT_EQ(view(), c.view);
    user::click(Form1.Command6);
    EXPECT_EQ(new_messages(), c.view.front() > '0' ? told : messages{});  // with icons left to show
    EXPECT_EQ(view(), c.view == one_of_3 ? "3: 2 -  0:" : c.view);
  }
}

TEST_F(series_test, ShowsNoMoreThan5000Icons) {
  show({plain_icons(5001, 1, 1)});
  EXPECT_EQ(new_messages(), messages{"The file: F1.SHP says that it holds 5001 pictures. Only the "
                                     "first 5000 are displayed."});
  EXPECT_EQ(Form1.Text2.Text(), "5000");
}

// After a click on an entry of another kind the next series is that of the icons still in view,
// with the bytes of their entry.
TEST_F(series_test, TheNextSeriesReadsTheEntryThatItsDirectoryCameFrom) {
  type_max_icons("1");
  open_archive(
      {{"A.TXT", ""}, palette_entry(), {"F.SHP", samples::shp_file(plain_icons(2, 30, 30))}});
  click_row("F.SHP");
  click_row("A.TXT");
  user::click(Form1.Command6);
  EXPECT_EQ(new_messages(), messages{});
  EXPECT_EQ(cell(1, 29, 29), "1");
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
    EXPECT_EQ(view(), "3: 1 -  1: 1=0");
    user::double_click(Form1.s16_image, 1);
    EXPECT_FALSE(Form3.Visible());
  }
}

TEST_F(series_test, AnArchiveThatIsGoneGivesAnEmptySeries) {
  type_max_icons("1");
  show({plain_icons(3, 1, 1)});
  std::filesystem::remove(place("C:\\ostrane.dat"));
  const auto expect_nothing = [&](const char* empty_view) {
    EXPECT_EQ(new_messages().size(), 1U);
    EXPECT_EQ(view(), empty_view);
    EXPECT_FALSE(Form3.Visible());
  };
  user::click(Form1.Command6);
  expect_nothing("3: 2 -  0:");
  click_row("F1.SHP");
  expect_nothing("0: 1 -  0:");
  user::click(Form1.Command5);
  user::tick(Form1.Timer1);
  EXPECT_FALSE(Form1.Timer1.Enabled());
}

}  // namespace
}  // namespace ostrane
