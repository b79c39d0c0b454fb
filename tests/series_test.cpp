#include <climits>

#include "icon_fixture.h"
#include "recording_screen.h"

namespace ostrane {
namespace {

std::string invalid_address(const std::string& number) {
  return "The adress of the file: A.SHP is invalid. Start offset for the shp-file is: " + number +
         ", the picture is not displayed.";
}

struct series_test : icon_test {
  static void type_max_icons(const char* text) {
    user::type(Form1.Text5, text);
    user::focus(&Form1.List1);
  }
};

// The next series starts after the last icon shown and may be empty.
TEST_F(series_test, ShowsSeriesAfterSeries) {
  const std::vector<shp_icon> seven = plain_icons(7, 1, 1);
  const shp_icon refused = refused_icon(3, 4);
  const std::string first_of_7 = "7: 1 -  1: 1=0";
  const std::string second_of_7 = "7: 2 -  2: 1=1";
  const std::tuple<const char*, std::vector<shp_icon>, texts> cases[] = {
      {"3", seven, {"7: 1 -  3: 1=0 2=1 3=2", "7: 4 -  6: 1=3 2=4 3=5", "7: 7 -  7: 1=6"}},
      {"1", seven, {first_of_7, second_of_7}},
      {"-5", seven, {first_of_7, second_of_7}},
      {"4", {seven[5], blank_icon(9, 2), refused, seven[6]}, {"4: 1 -  4: 1=5 2=. 4=6"}},
      {"1", {seven[5], blank_icon(1, 1)}, {"2: 1 -  1: 1=5", "2: 2 -  2: 1=."}},
      {"4", {seven[5], refused}, {"2: 1 -  1: 1=5", "2: 3 -  0:"}},
      {"9", plain_icons(3, 200, 200), {"3: 1 -  2: 1=0 2=1", "3: 3 -  3: 1=2"}},
      {"9", {plain_icon(900, 900, 1), seven[2]}, {"2: 1 -  1: 1=1", "2: 2 -  2: 1=2"}},
  };
  for (const auto& [max_icons, icons, series] : cases) {
    type_max_icons(max_icons);
    show({icons});
    for (const std::string& expected : series) {
      EXPECT_EQ(view(), expected);
      user::click(Form1.Command6);
    }
  }
  EXPECT_EQ(slot(1).columns(), 1);
}

TEST_F(series_test, ShowsTheWorkingMessageAndCountsIcons) {
  recording_screen screen;
  type_max_icons("2");
  show({plain_icons(3, 1, 1)});
  user::click(Form1.Command6);
  click_row("N.TXT");
  const std::string working =
      "This is just to let you know, I'm working...|It's only Visual Basic, so it takes some "
      "time.\rWorking on the job...\rHave patience.................\rIt's painting all these "
      "little dots that takes most of the time... \rReading and unpacking the shp-file takes less "
      "than a 25%, the rest is Visual Basic overhead...";
  const std::string drawing = "main progress " + working;
  EXPECT_EQ(screen.log, (texts{":", drawing, "1:", "2:", "3: 1 -  2", ":", drawing,
                               "3:", "main " + working, "3: 3 -  3"}));
}

// A slot has a border of one pixel on each side; a pixel is 15 twips. A row is as high as its
// tallest slot. A slot that reaches the edge of the frame does not fit.
TEST_F(series_test, PlacesTheSlots) {
  const std::vector<shp_icon> tens = plain_icons(9, 10, 10);
  constexpr std::int32_t two_columns = 200 + 2 * (180 + 15);
  constexpr std::int32_t two_rows = 800 + 2 * (180 + 15) - 15;
  const std::vector<shp_icon> uneven = {plain_icon(200, 10, 1), blank_icon(150, 40),
                                        plain_icon(90, 20, 2), plain_icon(200, 5, 3),
                                        plain_icon(300, 1, 4)};
  const std::tuple<std::int32_t, std::int32_t, std::vector<shp_icon>, const char*> cases[] = {
      {two_columns, two_rows, tens, " 200,800"},
      {two_columns + 1, two_rows + 1, tens, " 200,800 395,800 200,995 395,995"},
      {7455, 6570, uneven, " 200,800 3245,800 5540,800 200,1445 200,1565"},
  };
  for (const auto& [width, height, icons, seen] : cases) {  // of the frame
    user::resize(Form1, width + 2100 - 225, height + 825 - 705);
    show({icons});
    EXPECT_EQ(positions(), seen);
  }
}

// By the four comparisons of the head, and by the limit of slot sizes.
TEST_F(series_test, RefusesIcons) {
  const icon_head good[] = {{4, 5, 5, 4, 5, 4},      {4, 5, 6, 0, 9, 0},     {4, 5, 0, 5, 0, 9},
                            {4, 5, 3, 3, 0, 0},      {4, 5, -9, -9, -1, -1}, {2181, 0, 0, 0, 0, 0},
                            {-2, -2, -2, -2, -2, -2}};
  const icon_head refused[] = {{4, 5, 0, 0, 6, 0},      {4, 5, 0, 0, 0, 5},
                               {2182, 0, 0, 0, 0, 0},   {0, 2182, 0, 0, 0, 0},
                               {-3, 0, -3, -3, -3, -3}, {0, -32768, 0, 0, 0, 0},
                               {7, 6, 5, -4, 3, 8}};
  for (const icon_head& head : good) {
    show({{{head, ""}, plain_icon(1, 1, 9)}});
    EXPECT_EQ(view(), "2: 1 -  2: 1=. 2=9");
  }
  EXPECT_EQ(new_messages(), texts{});
  for (const icon_head& head : refused) {
    show({{{head, ""}, plain_icon(1, 1, 9)}});
    EXPECT_EQ(view(), "2: 1 -  2: 2=9");
  }
  const texts messages = new_messages();
  EXPECT_EQ(messages.size(), std::size(refused));
  EXPECT_EQ(messages.back(),
            "Something is rotten in the state of Denmark - fileformat has errors, icon "
            "is not displayed. \nNo-of-rows =  7\nRow-start = -4\nRow-end =  8\n"
            "No-of-cols =  6\nCol-start =  5\nCol-end =  3");
  // The 20th message of a series is the last.
  type_max_icons("30");
  show({std::vector<shp_icon>(22, refused_icon(3, 4))});
  const texts of_a_series = new_messages();
  EXPECT_EQ(of_a_series.size(), 20U);
  for (const std::string& message : of_a_series) {
    EXPECT_EQ(message.ends_with("\nFurther icons of this series are refused without a message."),
              &message == &of_a_series.back());
  }
}

// The archive, the number in the message or "", and the view.
TEST_F(series_test, AnIconOutsideTheFileEndsTheSeries) {
  const std::string three = shp_file(plain_icons(3, 1, 1));
  const auto at = [](std::int32_t offset) {
    return index_bytes(2, {{offset, " A.SHP"}, {38, ""}});
  };
  const auto holding = [](const std::string& icon_file) {
    return archive_bytes({palette_entry(), {" A.SHP", icon_file}});
  };
  const auto second_at = [&](std::int32_t offset) {
    return holding(with_number(three, 16, offset));
  };
  const auto count = [&](std::int32_t number) { return holding(with_number(three, 4, number)); };
  constexpr std::int32_t start = 4 + 3 * 17 + 1024;
  const std::string one_of_3 = "3: 1 -  1: 1=0";
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {second_at(-start - 2), "-1", one_of_3},
      {second_at(-start - 1), " 0", one_of_3},
      {second_at(static_cast<std::int32_t>(three.size()) - 23), " 1170", one_of_3},
      {second_at(INT_MAX), " 2147483647", one_of_3},
      {second_at(INT_MIN), "-2147482568", one_of_3},
      {count(0), "", "0: 1 -  0:"},
      {count(INT_MIN), "", "-2147483648: 1 -  0:"},
      {holding(with_number(three, 4, 7).substr(0, 8)), " 0", "7: 1 -  0:"},
      {holding(""), " 1080", "0: 1 -  0:"},
      {at(-1), " 0", "0: 1 -  0:"},
      {at(500000), " 500001", "0: 1 -  0:"},
      {at(INT_MIN), "-2147483647", "0: 1 -  0:"},
  };
  for (const auto& [archive, number, seen] : cases) {
    open_bytes(archive);
    click_row(" A.SHP");
    const texts messages = number.empty() ? texts{} : texts{invalid_address(number)};
    EXPECT_EQ(new_messages(), messages);
    EXPECT_EQ(view(), seen);
    user::click(Form1.Command6);
    EXPECT_EQ(new_messages(), seen.front() > '0' ? messages : texts{});  // if icons remain
    EXPECT_EQ(view(), seen == one_of_3 ? "3: 2 -  0:" : seen);
  }
}

TEST_F(series_test, ShowsAtMost5000IconsAndNoneOfAMissingArchive) {
  show({plain_icons(5001, 1, 1)});
  EXPECT_EQ(new_messages(), texts{"The file: F1.SHP says that it holds 5001 pictures. Only the "
                                  "first 5000 are displayed."});
  EXPECT_EQ(Form1.Text2.Text(), "5000");
  fs::remove(disk_path("C:\\ostrane.dat"));
  click_row("F1.SHP");
  EXPECT_EQ(view(), "0: 1 -  0:");
}

// Not the entry that was clicked after it.
TEST_F(series_test, TheNextSeriesReadsTheShownEntry) {
  type_max_icons("1");
  open_archive({{"A.TXT", ""}, palette_entry(), {"F.SHP", shp_file(plain_icons(2, 30, 30))}});
  click_row("F.SHP");
  click_row("A.TXT");
  user::click(Form1.Command6);
  EXPECT_EQ(new_messages(), texts{});
  EXPECT_EQ(cell(1, 29, 29), "1");
}

// Another archive, and one that could not be read.
TEST_F(series_test, ANextSeriesNeverMixesArchives) {
  for (const std::string& other :
       {archive_bytes({{"X.TXT", some_bytes(5000)}}), std::string("?")}) {
    type_max_icons("1");
    show({plain_icons(3, 5, 5)});
    write("C:\\other\\ostrane.dat", other);
    open_archive("C:\\other");
    new_messages();
    user::click(Form1.Command6);
    EXPECT_EQ(new_messages(), texts{});
    EXPECT_EQ(view(), "3: 1 -  1: 1=0");
    user::double_click(Form1.s16_image, 1);
    EXPECT_FALSE(Form3.Visible());
  }
}

}  // namespace
}  // namespace ostrane
