#include "tool_fixture.h"

namespace ostrane {
namespace {

using compare_test = tool_test;

void open_names(const texts& names) {
  std::vector<entry> entries;
  for (const std::string& name : names) entries.push_back({name, ""});
  open_archive(entries);
}

TEST_F(compare_test, WritesTheReportOfEachPairOfLists) {
  const auto counts = [](const char* archive, const char* shiplist) {
    return std::string("Different number of Icons:\r\n\r\n# in Ostrane.dat= ") + archive +
           ", # in Shiplist= " + shiplist + "\r\n\r\n";
  };
  const std::string head =
      "The following differences was found between your Ostrane.dat and the shiplist\r\n\r\n"
      "      Present in    Present in   \r\nIcon# Ostrane.dat   Shiplist     \r\n";
  const auto ship = [](const std::string& name) { return std::string(20, ' ') + name; };
  const struct {
    texts names;
    std::string shiplist;
    std::string counts;  // if they differ
    texts rows;
  } cases[] = {
      {{"A.SHP", "B.SHP"}, "A.SHP\r\nB.SHP\r\n\r\n", "", {}},
      {{"AAA.SHP", "BBB.SHP", "CCC.SHP"},
       "AAA.SHP\r\nBBX.SHP\r\nCCC.SHP\r\nDDD.SHP\r\n\r\n",
       counts("4", "5"),
       {"    1 BBB.SHP", ship("BBX.SHP"), ship("DDD.SHP")}},
      {{"A", "C", "E"}, "B\r\nD\r\nE\r\n\r\n", "", {"    0 A", ship("B")}},
      {{"A", "B", "C"}, "A\r\nB\r\nC\r\n", counts("4", "3"), {"    2 C"}},
      {{"A", "B", "C"}, "c\r\nb\r\n a\r\nA\r\nC\r\n\r\n", "", {}},
      {{" b "}, "c\r\n\r\n", "", {"    0 B", "    1 "}},
      {{"Z"}, "\tx\r\n y \r\n\r\n", counts("2", "3"), {ship("\tX"), ship("Y")}},
      {{"A", "B", "C"}, "", counts("4", "1"), {"    1 B", "    2 C"}},
      {{"A", "C", "D"}, "B", counts("4", "1"), {"    0 A", "    2 D"}},
      {{}, "A\r\nB\r\n\r\n", counts("1", "3"), {"    0 ", ship("B")}},
      // By the values of the characters, an accented letter behind Z and folded like the others.
      {{"A.1", "A0", "A\xC9"}, "A.1\r\nA\xE9\r\na0\r\n\r\n", "", {}},
      {{"A\xC9", "AZ"}, "AZ\r\n\r\n", counts("3", "2"), {ship("AZ"), "    1 AZ"}},
  };
  for (const auto& c : cases) {
    open_names(c.names);
    write("D:\\list.txt", c.shiplist);
    compare_with("D:\\", "list.txt");
    std::string report = c.counts + head;
    for (const std::string& row : c.rows) report += row + "\r\n";
    EXPECT_EQ(read("C:\\Shiplist-compare.txt"), report) << c.shiplist;
    EXPECT_EQ(new_messages(), texts{});
    EXPECT_TRUE(Form1.Enabled() && !Form6.Visible());
  }
}

TEST_F(compare_test, WithoutAShiplistOrWithOneTooLongTheDialogStays) {
  write("D:\\many.txt", std::string(32769, '\n'));
  open_names({"A"});
  compare_with("D:\\", "  ");
  user::click(Form6.Command2);
  compare_with("D:\\", " many.txt ");
  EXPECT_EQ(new_messages(),
            (texts{"No shiplist is chosen. Click one in the list of files.",
                   "D:\\many.txt has more than 32768 lines. Nothing was compared."}));
  EXPECT_TRUE(Form6.Visible() && !Form1.Enabled());
}

}  // namespace
}  // namespace ostrane
