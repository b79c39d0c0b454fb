#include "test_screen.h"

using namespace ostrane;

using compare_test = tool_test;

// The names in the archive, the shiplist, and the counts (if they differ) and rows of the report.
TEST_F(compare_test, WritesTheReportOfEachPairOfLists) {
  const auto counts = [](const char* archive, const char* shiplist) {
    return std::string("Different number of Icons:\r\n\r\n# in Ostrane.dat= ") + archive +
           ", # in Shiplist= " + shiplist + "\r\n\r\n";
  };
  const std::string head =
      "The following differences was found between your Ostrane.dat and the shiplist\r\n\r\n"
      "      Present in    Present in   \r\nIcon# Ostrane.dat   Shiplist     \r\n";
  const auto ship = [](const std::string& name) { return std::string(20, ' ') + name; };
  const std::string long_name = "ABCDEFGHIJKLMNOP";
  const std::string to_block_end(65532, 'X');
  const std::string two_blocks(70000, 'Y');
  const std::tuple<texts, std::string, std::string, texts> cases[] = {
      {{"A", "C", "E"}, "B\r\nD\r\nE\r\n\r\n", "", {"    0 A", ship("B")}},
      {{"A", "B", "C"}, "A\r\nB\r\nC\r\n", counts("4", "3"), {"    2 C"}},
      {{"A", "B", "C"}, "c\r\nb\r\n a\r\nA\r\nC\r\n\r\n", "", {}},
      {{" b "}, "c\r\n\r\n", "", {"    0 B", "    1 "}},
      {{"Z"}, "\tx\r\n y \r\n\r\n", counts("2", "3"), {ship("\tX"), ship("Y")}},
      // Any line end, also on both sides of the end of a block of 65536 bytes.
      {{"A"}, "A\n\nB\rC\r\n\r\n", counts("2", "5"), {ship(""), ship("B"), ship("C")}},
      {{"A"},
       "A\r\n" + to_block_end + "\r\n" + two_blocks + "\r\n\r\n",
       counts("2", "4"),
       {ship(to_block_end), ship(two_blocks)}},
      {{"A", "B", "C"}, "", counts("4", "1"), {"    1 B", "    2 C"}},
      {{"A", "C", "D"}, "B", counts("4", "1"), {"    0 A", "    2 D"}},
      {{}, "A\r\nB\r\n\r\n", counts("1", "3"), {"    0 ", ship("B")}},
      // In byte order: an accented letter is folded like the others and sorts after Z.
      {{"A.1", "A0", "A\xC9"}, "A.1\r\nA\xE9\r\na0\r\n\r\n", "", {}},
      {{"A\xC9", "AZ"}, "AZ\r\n\r\n", counts("3", "2"), {ship("AZ"), "    1 AZ"}},
      {{"Z"},
       long_name + "2\r\n" + long_name + "1\r\n" + long_name + "2\r\n\r\n",
       counts("2", "3"),
       {ship(long_name + "1"), ship(long_name + "2")}},
  };
  // Text files are listed also after a folder that is missing.
  restart("D:\\gone");
  write("D:\\a.dat", "no text");
  for (const auto& [names, shiplist, head_of_counts, rows] : cases) {
    open_names(names);
    write("D:\\list.txt", shiplist);
    test_screen screen;
    user::click(Form1.mnu_read_filelist);
    Form6.Dir1.Path = "D:\\";
    screen.log.clear();
    user::select_row(Form6.File1, 0);
    user::click(Form6.Command1);
    std::string report = head_of_counts + head;
    for (const std::string& row : rows) report += row + "\r\n";
    EXPECT_EQ(read("C:\\Shiplist-compare.txt"), report) << shiplist;
    EXPECT_EQ(screen.log, texts{"Form1"});  // takes the focus
    EXPECT_TRUE(Form1.Enabled() && !Form6.Visible());
  }
}

// Without rows no list is saved, but the message is shown.
TEST_F(compare_test, WritesNothingWithoutRowsOrAUsableShiplist) {
  restart("D:\\");
  write("D:\\many.txt", std::string(32769, '\n'));
  open_names({"A"});
  open_archive("C:\\program");
  user::click(Form1.mnu_save);
  run_comparison("D:\\", "many.txt");
  user::click(Form6.Command2);
  open_names({"A"});
  run_comparison("D:\\", "  ");
  user::click(Form6.Command2);
  run_comparison("D:\\", " many.txt ");
  EXPECT_EQ(new_messages(),
            (texts{"C:\\program\\ostrane.dat is not found",
                   "A list of all files in ostrane.dat are saved in shplist.txt",
                   "No archive is open. Read one first. Nothing was compared.",
                   "No shiplist is chosen. Click one in the list of files.",
                   "D:\\many.txt has more than 32768 lines. Nothing was compared."}));
  EXPECT_TRUE(Form6.Visible() && !Form1.Enabled());
  EXPECT_EQ(names_in("D:\\"), texts{"many.txt"});
}
