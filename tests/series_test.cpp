#include <set>

#include "test_screen.h"

using namespace ostrane;

using series_test = icon_test;

// The next series starts after the last icon shown and may be empty.
TEST_F(series_test, ShowsSeriesAfterSeries) {
  const std::vector<shp_icon> seven = plain_icons(7, 1, 1);
  const shp_icon refused = refused_icon(3, 4);
  const std::tuple<const char*, std::vector<shp_icon>, texts> cases[] = {
      {"3", seven, {"7: 1 -  3: 1=0 2=1 3=2", "7: 4 -  6: 1=3 2=4 3=5", "7: 7 -  7: 1=6"}},
      {"1", seven, {"7: 1 -  1: 1=0", "7: 2 -  2: 1=1"}},
      {"-5", seven, {"7: 1 -  1: 1=0", "7: 2 -  2: 1=1"}},
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
}

TEST_F(series_test, ShowsTheWorkingMessageAndCountsIcons) {
  test_screen screen;
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
  EXPECT_EQ(screen.log, (texts{":", "main progress hides bars", drawing, "1:", "2:", "3: 1 -  2",
                               ":", drawing, "3:", "main " + working, "3: 3 -  3"}));
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
    EXPECT_EQ(positions(), seen) << width;
  }
}

// The four comparisons of the head, and the limit of slot sizes.
TEST_F(series_test, RefusesIcons) {
  const icon_head good[] = {{4, 5, 5, 4, 5, 4},      {4, 5, 6, 0, 9, 0},     {4, 5, 0, 5, 0, 9},
                            {4, 5, 3, 3, 0, 0},      {4, 5, -9, -9, -1, -1}, {2181, 0, 0, 0, 0, 0},
                            {-2, -2, -2, -2, -2, -2}};
  const icon_head refused[] = {{4, 5, 0, 0, 6, 0},      {4, 5, 0, 0, 0, 5},
                               {2182, 0, 0, 0, 0, 0},   {0, 2182, 0, 0, 0, 0},
                               {-3, 0, -3, -3, -3, -3}, {0, -32768, 0, 0, 0, 0},
                               {7, 6, 5, -4, 3, 8}};
  const auto view_of = [](const icon_head& head) {
    show({{{head, ""}, plain_icon(1, 1, 9)}});
    return view();
  };
  for (const auto& head : good) EXPECT_EQ(view_of(head), "2: 1 -  2: 1=. 2=9") << &head - good;
  EXPECT_EQ(new_messages(), texts{});
  for (const auto& head : refused) EXPECT_EQ(view_of(head), "2: 1 -  2: 2=9") << &head - refused;
  const texts messages = new_messages();
  EXPECT_EQ(messages.size(), std::size(refused));
  EXPECT_EQ(messages.back(),
            "Something is rotten in the state of Denmark - fileformat has errors, icon "
            "is not displayed. \nNo-of-rows =  7\nRow-start = -4\nRow-end =  8\n"
            "No-of-cols =  6\nCol-start =  5\nCol-end =  3");
}

// The archive, the number in the message or "", and the view.
TEST_F(series_test, IconOutsideTheFileEndsTheSeries) {
  const std::string three = shp_file(plain_icons(3, 1, 1));
  const auto at = [](int offset) { return index_bytes(2, {{offset, " A.SHP"}, {38, ""}}); };
  const auto holding = [](const std::string& icon_file) {
    return archive_bytes({palette_entry(), {" A.SHP", icon_file}});
  };
  const auto second_at = [&](int offset) { return holding(with_number(three, 16, offset)); };
  const auto count = [&](int number) { return holding(with_number(three, 4, number)); };
  constexpr std::int32_t start = 4 + 3 * 17 + 1024;
  const std::string one_of_3 = "3: 1 -  1: 1=0";
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {second_at(-start - 2), "-1", one_of_3},
      {second_at(-start - 1), " 0", one_of_3},
      {second_at(static_cast<int>(three.size()) - 23), " 1170", one_of_3},
      {second_at(INT32_MAX), " 2147483647", one_of_3},
      {second_at(INT32_MIN), "-2147482568", one_of_3},
      {count(0), "", "0: 1 -  0:"},
      {count(INT32_MIN), "", "-2147483648: 1 -  0:"},
      {holding(with_number(three, 4, 7).substr(0, 8)), " 0", "7: 1 -  0:"},
      {holding(""), " 1080", "0: 1 -  0:"},
      {at(-1), " 0", "0: 1 -  0:"},
      {at(500000), " 500001", "0: 1 -  0:"},
      {at(INT32_MIN), "-2147483647", "0: 1 -  0:"},
  };
  for (const auto& [archive, number, seen] : cases) {
    open_bytes(archive);
    click_row(" A.SHP");
    const std::string message =
        "The adress of the file: A.SHP is invalid. Start offset for the shp-file is: " + number +
        ", the picture is not displayed.";
    const texts messages(number.empty() ? 0 : 1, message);
    EXPECT_EQ(new_messages(), messages);
    EXPECT_EQ(view(), seen);
    user::click(Form1.Command6);
    EXPECT_EQ(new_messages(), seen.front() > '0' ? messages : texts{});  // if icons remain
    EXPECT_EQ(view(), seen == one_of_3 ? "3: 2 -  0:" : seen);
  }
}

// Each call fails in turn. If the archive cannot be opened, the file before stays shown. Otherwise
// the next series never shows icons of another file.
TEST_F(series_test, ForgetsADirectoryThatCannotBeRead) {
  std::set<std::string> seen;
  type_max_icons("1");
  bool happened = true;
  for (int at = 0; happened; ++at) {
    show({plain_icons(9, 1, 1), {plain_icon(1, 1, 50), plain_icon(1, 1, 51)}});
    {
      failing_calls fault(at, {.reason = EIO});
      fault.max_bytes = 16;
      click_row("F2.SHP");
      happened = fault.happened();
    }
    new_messages();
    for (int i = 0; i < 2; ++i) user::click(Form1.Command6), seen.insert(view());
    EXPECT_EQ(new_messages(), texts{}) << at;
  }
  EXPECT_EQ(seen, (std::set<std::string>{"0: 1 -  0:", "2: 1 -  1: 1=50", "2: 2 -  2: 1=51",
                                         "9: 2 -  2: 1=1", "9: 3 -  3: 1=2"}));
}

// The next series is of the shown entry, not of one that was clicked after it.
TEST_F(series_test, NextSeriesRequiresTheSameArchive) {
  const std::vector<entry> entries = {
      palette_entry(), {"A.TXT", ""}, {"F.SHP", shp_file(plain_icons(3, 30, 30))}};
  write("C:\\other\\ostrane.dat", archive_bytes(entries));
  write("C:\\bad\\ostrane.dat", "?");
  // The folders opened in between: it is the same archive after the first three.
  const texts cases[] = {{},          {"C:\\"},       {"C:\\program", "C:\\"}, {"C:\\other"},
                         {"C:\\bad"}, {"C:\\program"}};
  for (const texts& folders : cases) {
    const bool next = &folders - cases < 3;
    restart();
    type_max_icons("1");
    open_archive(entries);
    click_row("F.SHP");
    if (folders.empty()) click_row("A.TXT");
    for (const std::string& folder : folders) open_archive(folder);
    new_messages();
    user::click(Form1.Command6);
    SCOPED_TRACE(testing::PrintToString(folders));
    EXPECT_EQ(new_messages(), texts{});
    EXPECT_EQ(view(), next ? "3: 2 -  2: 1=1" : "3: 1 -  1: 1=0");
    EXPECT_EQ(cell(1, 29, 29), next ? "1" : "0");
    user::double_click(Form1.s16_image, 1);
    EXPECT_FALSE(Form3.Visible());
  }
}
