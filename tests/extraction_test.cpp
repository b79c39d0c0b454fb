#include "recording_screen.h"

namespace ostrane {
namespace {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;
using files = std::map<std::string, std::string>;

class extraction_test : public tool_test {
 protected:
  void extract(const std::vector<entry>& entries, const std::string& folder = "D:\\") {
    open_archive(entries);
    extract_into(folder);
  }
};

const std::string closing = "All files from Ostrane.dat has been extracted into: ";
const std::string refusal = "These entries were not extracted:";

TEST_F(extraction_test, WritesEachEntryUnderItsNameWithBlanksForNuls) {
  std::vector<entry> entries;
  files expected;
  const std::pair<std::string, std::string> names[] = {
      {"EMPTY", "EMPTY"},
      {"ABCDEFGHI.SHP", "ABCDEFGHI.SHP"},
      {" c.txt ", "c.txt"},
      {std::string("\0A\0 B.TXT\0\0", 10), "A  B.TXT"},
      {"\xC9T\xC9", "\xC3\x89T\xC3\x89"},
  };
  for (const auto& [name, written] : names) {
    entries.push_back({name, some_bytes(3001 * entries.size())});
    expected[written] = entries.back().bytes;
  }
  // Names that only look like refused ones.
  for (const char* name : {"..a", "COM0", "COM10", "CONX", "LPT", "LPTX", "XCON", "a .b"}) {
    entries.push_back({name, name});
    expected[name] = name;
  }
  extract(entries);
  EXPECT_EQ(files_in("D:\\"), expected);
  EXPECT_EQ(new_messages(), texts{closing + "D:\\"});
}

// Every entry goes over what is there from its first byte on, and cuts nothing off.
TEST_F(extraction_test, WritesOverFilesWithoutEmptyingThem) {
  write("D:\\long.txt", "0123456789");
  write("D:\\EMPTY", "kept");
  extract({{"LONG.TXT", "abc"}, {"EMPTY", ""}, {"TWICE", "first"}, {"TWICE", "2nd"}});
  EXPECT_EQ(files_in("D:\\"),
            (files{{"long.txt", "abc3456789"}, {"EMPTY", "kept"}, {"TWICE", "2ndst"}}));
}

// The progress window goes before the closing message, the dialog behind it.
TEST_F(extraction_test, TellsEachEntryAndGivesTheMainWindowBackBehindTheClosingMessage) {
  recording_screen screen;
  open_archive({{"A.SHP", "a"}, {std::string("B\0C", 3), ""}});
  screen.texts.clear();
  screen.at_refresh = [] { expect_progress("Ostrane.dat tool - File Extraction", true); };
  screen.at_message = [] {
    expect_progress("Ostrane.dat tool - ", false);
    EXPECT_TRUE(Form4.Visible() && !Form1.Visible());
  };
  extract_into("");  // the root of the current drive
  EXPECT_EQ(screen.texts,
            (texts{"Extracting file: \\A.SHP\r\nFile number:      1\r\nTotal number of files:  2",
                   "Extracting file: \\B C\r\nFile number:      2\r\nTotal number of files:  2"}));
  EXPECT_EQ(screen.messages, texts{closing + "\\"});
  EXPECT_EQ(read("C:\\A.SHP"), "a");
  EXPECT_TRUE(Form1.Visible() && !Form4.Visible());
}

TEST_F(extraction_test, MovesTheBarsAtTheirPaces) {
  const struct {
    std::size_t entries, size;
    std::vector<float> total_bar, file_bar;
    float total_max, file_max;
  } cases[] = {
      {0, 0, {}, {}, 0, 100},         {1, 0, {}, {}, 0, 0},
      {48, 1, {}, {}, 47, 1},         {49, 1, {48}, {}, 48, 1},
      {97, 1, {48}, {}, 96, 1},       {98, 1, {48, 97}, {}, 97, 1},
      {2, 700, {}, {384}, 1, 700},    {4, 700, {}, {384, 128}, 3, 700},
      {2, 1025, {}, {1024}, 1, 1025},
  };
  recording_screen screen;
  for (const auto& c : cases) {
    open_archive(std::vector<entry>(c.entries, {"A", some_bytes(c.size)}));
    screen.begin_bars();
    extract_into("D:\\");
    EXPECT_EQ(screen.messages.back(), closing + "D:\\");
    EXPECT_EQ(screen.values_2, c.total_bar) << c.entries;
    EXPECT_EQ(screen.values_1, c.file_bar) << c.entries << " of " << c.size;
    EXPECT_EQ(Form3.ProgressBar2.Max(), c.total_max);
    EXPECT_EQ(Form3.ProgressBar1.Max(), c.file_max);
  }
}

// The dialog stays, and not even a folder comes into being.
TEST_F(extraction_test, WritesNothingWithoutAFolderOrAnArchive) {
  const struct {
    const char* folder;
    std::function<void()> spoil;
    const char* fault;
  } cases[] = {
      {"D:\\missing", [] {}, "The folder D:\\missing\\ is not there."},
      {"E:\\", [] {}, "The folder E:\\ is not there."},
      {"D:\\", [&] { fs::remove(place("C:\\ostrane.dat")); },
       "C:\\ostrane.dat cannot be opened: it is not there."},
      {"D:\\", [&] { open_archive("C:\\program"); }, "No archive is open."},
  };
  for (const auto& c : cases) {
    begin();
    open_archive({{"A.TXT", "a"}});
    c.spoil();
    new_messages();
    extract_into(c.folder);
    EXPECT_EQ(new_messages(), texts{std::string(c.fault) + " Nothing was extracted."});
    EXPECT_TRUE(Form4.Visible() && !Form3.Visible() && !Form1.Visible());
    EXPECT_EQ(names_in("D:\\"), texts{});
  }
}

const std::pair<const char*, texts> refused_names[] = {
    {"it has no name", {""}},
    {"its name means a folder", {".", ".."}},
    {"its name holds a separator of paths", {"A\\B", "..\\UP.TXT", "A/B", "/etc/x", "C:X"}},
    {"its name holds a control character", {"A\tB", "A\x7F"}},
    {"D:\\in\\DIR cannot be opened: it is a folder.", {"DIR"}},
    {"its name means a device",
     {"CON", "prn.txt", "AUX.A.B", "Nul .TXT", "COM1", "lpt9.shp", "COM\xB9", "LPT\xB3.TXT", "NUL",
      "COM2"}},
};

// The first twenty are told. The archive is read straight on: a refused entry must not shift the
// bytes of those behind it.
TEST_F(extraction_test, PassesOverEntriesThatMustOrCanNotBeWritten) {
  make_folder("D:\\in\\DIR");
  std::vector<entry> entries;
  files expected;
  std::string told = refusal;
  for (const auto& [reason, names] : refused_names) {
    for (const std::string& name : names) {
      const auto number = static_cast<unsigned>(entries.size());
      const std::string good = "G" + std::to_string(number);
      entries.push_back({name, some_bytes(1000 + number, number)});
      entries.push_back({good, some_bytes(number, number)});
      expected[good] = entries.back().bytes;
      std::string shown = name;
      std::replace(shown.begin(), shown.end(), '\t', '?');
      if (entries.size() <= 40) told += "\n>" + shown + "<: " + reason;
    }
  }
  extract(entries, "D:\\in");
  EXPECT_EQ(files_in("D:\\in"), expected);
  EXPECT_EQ(names_in("D:\\"), texts{"in"});
  EXPECT_EQ(new_messages(), (texts{told + "\nand 1 more.", closing + "D:\\in\\"}));
}

// Cut anywhere in an entry, an archive gives those before it whole, and no half of one.
TEST_F(extraction_test, LeavesNothingHalfWrittenOfATruncatedArchive) {
  const std::string bytes = some_bytes(9500);
  const std::string whole = archive_bytes({{"A", bytes}, {"B", ""}, {"C", bytes}, {"D", "d"}});
  for (std::size_t left_out = 2; left_out <= 9501; left_out += 17) {
    open_bytes(whole.substr(0, whole.size() - left_out));
    extract_into("D:\\");
    ASSERT_EQ(files_in("D:\\"), (files{{"A", bytes}, {"B", ""}})) << left_out;
    ASSERT_EQ(new_messages(), (texts{refusal + "\n>C<: the archive ends before it does"
                                               "\n>D<: the archive ends before it does",
                                     closing + "D:\\"}));
  }
}

TEST_F(extraction_test, NeverWritesToTheOpenArchive) {
  const std::vector<entry> entries = {
      {"A.TXT", "a"}, {"OSTRANE.DAT", some_bytes(500)}, {"LINKED", "xyz"}, {"Z.TXT", "z"}};
  open_archive(entries);
  fs::create_hard_link(place("C:\\ostrane.dat"), place("C:\\linked"));
  extract_into("C:\\");
  const std::string bytes = archive_bytes(entries);
  EXPECT_EQ(files_in("C:\\"),
            (files{{"A.TXT", "a"}, {"Z.TXT", "z"}, {"linked", bytes}, {"ostrane.dat", bytes}}));
  EXPECT_EQ(new_messages(),
            (texts{refusal + "\n>OSTRANE.DAT<: it would be written over the open archive"
                             "\n>LINKED<: it would be written over the open archive",
                   closing + "C:\\"}));
}

// A size below 0 takes nothing and moves nothing; offsets seek nothing.
TEST_F(extraction_test, CopesWithOffsetsOutOfOrder) {
  const std::string data = some_bytes(40);
  open_bytes(index_bytes(4, {{72, "A"}, {82, "B"}, {76, "C"}, {81, ""}}) + data);
  extract_into("D:\\");
  EXPECT_EQ(files_in("D:\\"), (files{{"A", data.substr(0, 10)}, {"C", data.substr(10, 5)}}));
  EXPECT_EQ(new_messages().front(), refusal + "\n>B<: the index gives it a size below 0");
}

TEST_F(extraction_test, MakesTheNewFolderAndGoesThereOrTellsWhyNot) {
  open_archive({{"A.TXT", "a"}});
  user::click(Form1.mnu_ext);
  const struct {
    std::string in, name, result;  // where the dialog stands then, the error, or nothing
  } cases[] = {
      {"D:\\", "   ", ""},        {"D:\\", "one", "D:\\one"}, {"D:\\one", " two", "D:\\one\\ two"},
      {"D:\\", "ONE", "58"},      {"D:\\missing", "x", "53"}, {"Q:", "x", "68"},
      {"", "three", "C:\\three"},
  };
  const std::string problem =
      "Problem encountered while trying to make new Folder. The error reported from Windows is: "
      "Error Number:  ";
  std::string stands = Form4.Dir1.Path();
  for (const auto& c : cases) {
    user::type(Form4.Text1, c.in);
    user::type(Form4.Text2, c.name);
    user::click(Form4.Command1);
    const bool made = c.result.size() > 2;
    if (made) stands = c.result;
    EXPECT_EQ((texts{Form4.Dir1.Path(), Form4.File1.Path(), Form4.Text1.Text()}),
              (texts{stands, stands, made ? stands : c.in}));
    EXPECT_EQ(new_messages(), made || c.result.empty() ? texts{} : texts{problem + c.result});
    EXPECT_TRUE(fs::is_directory(place(stands))) << stands;
  }
  EXPECT_EQ(names_in("D:\\"), texts{"one"});
}

}  // namespace
}  // namespace ostrane
