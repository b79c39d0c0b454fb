#include <random>
#include <utility>

#include "lists/compare_key.h"
#include "lists/shiplist.h"
#include "tool_fixture.h"

namespace ostrane {
namespace {

using lines = std::vector<std::string>;

class compare_test : public tool_test {
 protected:
  void open_names(const lines& names) {
    std::vector<entry> entries;
    for (const std::string& name : names) entries.push_back({name, ""});
    open_archive(entries);
  }
};

// The report: its two counts, if they differ, and its rows.
std::string report_of(const lines& rows, const std::string& counts = "") {
  std::string text;
  if (!counts.empty()) text = "Different number of Icons:\r\n\r\n" + counts + "\r\n\r\n";
  text +=
      "The following differences was found between your Ostrane.dat and the shiplist\r\n\r\n"
      "      Present in    Present in   \r\nIcon# Ostrane.dat   Shiplist     \r\n";
  for (const std::string& row : rows) text += row + "\r\n";
  return text;
}

std::string ship(const std::string& name) { return std::string(20, ' ') + name; }

TEST_F(compare_test, WritesTheReportOfEachPairOfLists) {
  const auto counts = [](int archive, int shiplist) {
    return "# in Ostrane.dat= " + std::to_string(archive) +
           ", # in Shiplist= " + std::to_string(shiplist);
  };
  const struct {
    lines names;
    std::string shiplist;
    std::string report;
  } cases[] = {
      {{"A.SHP", "B.SHP"}, "A.SHP\r\nB.SHP\r\n\r\n", report_of({})},
      {{"AAA.SHP", "BBB.SHP", "CCC.SHP"},
       "AAA.SHP\r\nBBX.SHP\r\nCCC.SHP\r\nDDD.SHP\r\n\r\n",
       report_of({"    1 BBB.SHP", ship("BBX.SHP"), ship("DDD.SHP")}, counts(4, 5))},
      {{"A", "C", "E"}, "B\r\nD\r\nE\r\n\r\n", report_of({"    0 A", ship("B")})},
      {{"A", "B", "C"}, "A\r\nB\r\nC\r\n", report_of({"    2 C"}, counts(4, 3))},
      {{"A", "B"}, "C\r\n\r\n", report_of({"    0 A", "    1 B", "    2 "}, counts(3, 2))},
      {{"A", "B", "C"}, "C\r\nB\r\nA\r\nA\r\n\r\n", report_of({})},
      {{"ABC.SHP"}, " abc.shp \r\n\r\n", report_of({})},
      {{" b "}, "c\r\n\r\n", report_of({"    0 B", "    1 "})},
      {{"Z"}, "\tx\r\n y \r\n\r\n", report_of({ship("\tX"), ship("Y")}, counts(2, 3))},
      {{"A", "B", "C"}, "", report_of({"    1 B", "    2 C"}, counts(4, 1))},
      {{"A", "B"}, "B\nA\n\n", report_of({})},
      {{}, "A\r\nB\r\n\r\n", report_of({"    0 ", ship("B")}, counts(1, 3))},
      // By the values of the characters, an accented letter behind Z and folded like the others.
      {{"A.1", "A0", "A\xC9"}, "A.1\r\nA\xE9\r\na0\r\n\r\n", report_of({})},
      {{"A\xC9", "AZ"}, "AZ\r\n\r\n", report_of({ship("AZ"), "    1 AZ"}, counts(3, 2))},
  };
  for (const auto& c : cases) {
    open_names(c.names);
    write("D:\\list.txt", c.shiplist);
    compare_with("D:\\", "list.txt");
    EXPECT_EQ(read("C:\\Shiplist-compare.txt"), c.report) << c.shiplist;
    EXPECT_EQ(new_messages(), lines{});
    EXPECT_TRUE(Form1.Enabled() && !Form6.Visible());
  }
}

// The result is that of repeated passes over neighbours, which drop and exchange names one by one.
void sort_by_passes(lines& names) {
  const auto key = [&](std::size_t i) { return compare_key(names[i]); };
  for (bool changed = true; std::exchange(changed, false);) {
    for (std::size_t i = 0; i + 1 < names.size(); ++i) {
      if (key(i) < key(i + 1)) continue;
      changed = true;
      if (key(i) == key(i + 1)) names.erase(names.begin() + static_cast<std::ptrdiff_t>(i) + 1);
      if (i + 1 < names.size() && key(i) > key(i + 1)) std::swap(names[i], names[i + 1]);
    }
  }
}

TEST_F(compare_test, SortsAsTheRepeatedPassesDo) {
  std::mt19937 random(5);
  const lines names = {"a", "A", " a ", "b", "ab", "AB", "a.", "0", "", " ", "\xE9", "\xC9", "z"};
  for (int time = 0; time < 1000; ++time) {
    lines all(random() % 60);
    for (std::string& line : all) line = names[random() % names.size()];
    tool_state.shiplist_lines = all;
    tool_state.shiplist_lines.push_back("final");
    tool_state.shiplist_last = static_cast<std::int16_t>(all.size());
    sort_shiplist();
    sort_by_passes(all);
    ASSERT_EQ(tool_state.shiplist_last, all.size());
    all.push_back("final");
    ASSERT_EQ(tool_state.shiplist_lines, all);
  }
}

TEST_F(compare_test, WhatCannotBeReadOrWrittenIsToldAndTheDialogStays) {
  const std::string nothing = " Nothing was compared.";
  const std::pair<const char*, std::string> cases[] = {
      {"  ", "No shiplist is chosen. Click one in the list of files."},
      {" folder.txt ", "D:\\folder.txt cannot be opened: it is a folder." + nothing},
      {"many.txt", "D:\\many.txt has more than 32768 lines." + nothing},
      {"list.txt", "C:\\Shiplist-compare.txt cannot be opened: it is a folder." + nothing},
  };
  write("D:\\list.txt", "A\r\n");
  write("D:\\many.txt", std::string(32769, '\n'));
  make_folder("D:\\folder.txt");
  make_folder("C:\\Shiplist-compare.txt");
  open_names({"A"});
  user::click(Form1.mnu_read_filelist);
  Form6.Dir1.Path = "D:\\";
  for (const auto& [chosen, message] : cases) {
    Form6.Text1.Text = chosen;
    user::click(Form6.Command1);
    EXPECT_EQ(new_messages(), lines{message});
    EXPECT_TRUE(Form6.Visible() && !Form1.Enabled());
  }
}

}  // namespace
}  // namespace ostrane
