#include "full_disk.h"
#include "recording_screen.h"

namespace ostrane {
namespace {

using texts = std::vector<std::string>;
using files = std::map<std::string, std::string>;

class extraction_test : public tool_test {
 protected:
  // Extracts the open archive into a folder, as typed into the dialog.
  static void extract_into(const std::string& folder) {
    user::click(Form1.mnu_ext);
    user::type(Form4.Text1, folder);
    user::click(Form4.Command2);
  }
  void extract(const std::vector<entry>& entries, const std::string& folder = "D:\\") {
    open_archive(entries);
    extract_into(folder);
  }
  // Opens a file of these bytes as the archive.
  void open_bytes(const std::string& bytes) {
    write("C:\\ostrane.dat", bytes);
    open_archive();
  }
  std::vector<entry> entries_of_size(std::size_t count, std::size_t size) const {
    std::vector<entry> entries;
    for (std::size_t i = 0; i < count; ++i) {
      entries.push_back({"E" + std::to_string(i), some_bytes(size, static_cast<unsigned>(i))});
    }
    return entries;
  }
};

const std::string closing = "All files from Ostrane.dat has been extracted into: ";

TEST_F(extraction_test, WritesEachEntryUnderItsNameWithBlanksForNuls) {
  extract({{"GAME.PAL", some_bytes(1024)},
           {"ABCDEFGHI.SHP", some_bytes(8192)},
           {std::string("\0A\0 B.TXT\0\0", 10), some_bytes(20000)},
           {" c.txt ", "c"},
           {"EMPTY", ""},
           {"\xC9T\xC9.TXT", some_bytes(9)}});
  EXPECT_EQ(files_in("D:\\"), (files{{"GAME.PAL", some_bytes(1024)},
                                     {"ABCDEFGHI.SHP", some_bytes(8192)},
                                     {"A  B.TXT", some_bytes(20000)},
                                     {"c.txt", "c"},
                                     {"EMPTY", ""},
                                     {"\xC3\x89T\xC3\x89.TXT", some_bytes(9)}}));
  EXPECT_EQ(new_messages(), texts{closing + "D:\\"});
}

// Every entry goes over what is there from its first byte on, and cuts nothing off.
TEST_F(extraction_test, WritesOverFilesWithoutEmptyingThem) {
  write("D:\\in\\long.txt", "0123456789");
  write("D:\\in\\EMPTY", "kept");
  write("D:\\in\\other", "other");
  const std::vector<entry> entries = {
      {"LONG.TXT", "abc"}, {"EMPTY", ""}, {"TWICE", "first"}, {"TWICE", "2nd"}, {"twice", "3"}};
  const files expected = {
      {"long.txt", "abc3456789"}, {"EMPTY", "kept"}, {"other", "other"}, {"TWICE", "3ndst"}};
  for (int time = 0; time < 2; ++time) {
    extract(entries, "D:\\in");
    EXPECT_EQ(files_in("D:\\in"), expected);
    EXPECT_EQ(new_messages(), texts{closing + "D:\\in\\"});
  }
}

TEST_F(extraction_test, TellsEachEntryWithItsNumber) {
  recording_screen screen;
  open_archive({{"A.SHP", "a"}, {std::string("B\0C", 3), ""}, {"ABCDEFGHI.SHP", "x"}});
  screen.texts.clear();
  screen.at_refresh = [] {
    EXPECT_EQ(Form3.Caption(), "Ostrane.dat tool - File Extraction");
    EXPECT_TRUE(Form3.Visible() && Form4.Visible());
    EXPECT_TRUE(Form3.ProgressBar1.Visible() && Form3.ProgressBar2.Visible());
    EXPECT_TRUE(Form3.Label1.Visible() && Form3.Label2.Visible());
  };
  extract_into("D:\\");
  EXPECT_EQ(screen.texts,
            (texts{"Extracting file: D:\\A.SHP\r\nFile number:      1\r\nTotal number of files:  3",
                   "Extracting file: D:\\B C\r\nFile number:      2\r\nTotal number of files:  3",
                   "Extracting file: D:\\ABCDEFGHI.SHP\r\nFile number:      3\r\n"
                   "Total number of files:  3"}));
}

// The progress window goes before the closing message, the dialog behind it.
TEST_F(extraction_test, GivesTheMainWindowBackBehindTheClosingMessage) {
  recording_screen screen;
  open_archive({{"A.SHP", "a"}});
  screen.at_message = [] {
    EXPECT_FALSE(Form3.Visible() || Form1.Visible());
    EXPECT_TRUE(Form4.Visible());
    EXPECT_EQ(Form3.Caption(), "Ostrane.dat tool - ");
    EXPECT_FALSE(Form3.ProgressBar1.Visible() || Form3.ProgressBar2.Visible());
    EXPECT_FALSE(Form3.Label1.Visible() || Form3.Label2.Visible());
  };
  extract_into("D:\\");
  EXPECT_EQ(screen.messages, texts{closing + "D:\\"});
  EXPECT_TRUE(Form1.Visible());
  EXPECT_FALSE(Form4.Visible());
}

TEST_F(extraction_test, MovesTheBarsAtTheirPaces) {
  const struct {
    std::size_t entries, size;
    std::vector<float> total_bar, file_bar;
    float total_max, file_max;
  } cases[] = {
      {1, 0, {}, {}, 0, 0},
      {48, 1, {}, {}, 47, 1},
      {49, 1, {48}, {}, 48, 1},
      {97, 1, {48}, {}, 96, 1},
      {98, 1, {48, 97}, {}, 97, 1},
      {2, 700, {}, {384}, 1, 700},
      {4, 700, {}, {384, 128}, 3, 700},
      {2, 1025, {}, {1024}, 1, 1025},
  };
  recording_screen screen;
  for (const auto& c : cases) {
    open_archive(entries_of_size(c.entries, c.size));
    screen.begin_bars();
    extract_into("D:\\");
    EXPECT_EQ(screen.values_2, c.total_bar) << c.entries;
    EXPECT_EQ(screen.values_1, c.file_bar) << c.entries << " of " << c.size;
    EXPECT_EQ(Form3.ProgressBar2.Max(), c.total_max);
    EXPECT_EQ(Form3.ProgressBar1.Max(), c.file_max);
    EXPECT_EQ(Form3.ProgressBar1.Min() + Form3.ProgressBar2.Min(), 0);
  }
}

TEST_F(extraction_test, WorksTheFolderOut) {
  make_folder("D:\\sub");
  begin("D:\\sub");
  const std::pair<const char*, const char*> cases[] = {
      {"", "\\A.TXT"}, {"C:\\", "C:\\A.TXT"}, {"D:\\SUB", "D:\\sub\\A.TXT"}};
  for (const auto& [typed, written] : cases) {
    extract({{"A.TXT", "a"}}, typed);
    const std::string folder = std::string(typed) + (std::string(typed) == "C:\\" ? "" : "\\");
    EXPECT_EQ(new_messages(), texts{closing + folder});
    EXPECT_TRUE(exists(*written == '\\' ? "D:" + std::string(written) : written)) << typed;
  }
}

// The dialog stays, and not even a folder comes into being.
TEST_F(extraction_test, WritesNothingWithoutAFolderOrAnArchive) {
  const std::string bytes = archive_bytes({{"A.TXT", "a"}});
  const struct {
    const char* folder;
    std::function<void()> spoil;
    const char* fault;
  } cases[] = {
      {"D:\\missing", [] {}, "The folder D:\\missing\\ is not there."},
      {"E:\\", [] {}, "The folder E:\\ is not there."},
      {"Q:\\", [] {}, "The folder Q:\\ is not there."},
      {"D:\\", [&] { std::filesystem::remove(place("C:\\ostrane.dat")); },
       "C:\\ostrane.dat cannot be opened: it is not there."},
      {"D:\\", [&] { open_archive("C:\\program"); }, "No archive is open."},
      {"D:\\",
       [&] {
         open_bytes(index_bytes(2, {{-7, "A.TXT"}, {38, ""}}));
       },
       "The index of C:\\ostrane.dat puts entries before the file."},
  };
  for (const auto& c : cases) {
    begin();
    open_bytes(bytes);
    c.spoil();
    new_messages();
    extract_into(c.folder);
    EXPECT_EQ(new_messages(), texts{std::string(c.fault) + " Nothing was extracted."});
    EXPECT_TRUE(Form4.Visible());
    EXPECT_FALSE(Form3.Visible() || Form1.Visible());
    EXPECT_EQ(names_in("D:\\"), texts{});
  }
}

TEST_F(extraction_test, AnArchiveWithoutEntriesGivesTheClosingMessageAlone) {
  for (const std::string& bytes : {index_bytes(1, {{21, ""}}), index_bytes(0, {})}) {
    open_bytes(bytes);
    extract_into("D:\\");
    EXPECT_EQ(new_messages(), texts{closing + "D:\\"});
    EXPECT_EQ(Form3.ProgressBar2.Max(), 0);
    EXPECT_EQ(names_in("D:\\"), texts{});
  }
}

const std::string separator = "its name holds a separator of paths";
const std::string control = "its name holds a control character";
const std::string device = "its name means a device";

const struct {
  std::string name;
  std::string shown;
  std::string reason;
} refused_names[] = {
    {"", "", "it has no name"},
    {"   ", "", "it has no name"},
    {".", ".", "its name means a folder"},
    {"..", "..", "its name means a folder"},
    {"A\\B", "A\\B", separator},
    {"..\\UP.TXT", "..\\UP.TXT", separator},
    {"A/B", "A/B", separator},
    {"/etc/x", "/etc/x", separator},
    {"C:X", "C:X", separator},
    {"A\tB", "A?B", control},
    {"A\x7F", "A\x7F", control},
    {"CON", "CON", device},
    {"prn.txt", "prn.txt", device},
    {"AUX.A.B", "AUX.A.B", device},
    {"Nul .TXT", "Nul .TXT", device},
    {"COM1", "COM1", device},
    {"lpt9.shp", "lpt9.shp", device},
    {"COM\xB9", "COM\xB9", device},
    {"LPT\xB3.TXT", "LPT\xB3.TXT", device},
};

// The archive is read straight on: a refused entry must not shift the bytes of those behind it.
TEST_F(extraction_test, PassesOverNamesThatWouldLeadOutOfTheFolder) {
  make_folder("D:\\in");
  std::vector<entry> entries;
  files expected;
  std::string told = "These entries were not extracted:";
  for (const auto& refused : refused_names) {
    const auto number = static_cast<unsigned>(entries.size());
    const std::string good = "G" + std::to_string(number);
    entries.push_back({refused.name, some_bytes(1000 + number, number)});
    entries.push_back({good, some_bytes(number, number)});
    expected[good] = entries.back().bytes;
    told += "\n>" + refused.shown + "<: " + refused.reason;
  }
  extract(entries, "D:\\in");
  EXPECT_EQ(files_in("D:\\in"), expected);
  EXPECT_EQ(names_in("D:\\"), texts{"in"});
  EXPECT_EQ(new_messages(), (texts{told, closing + "D:\\in\\"}));
}

TEST_F(extraction_test, TakesNamesThatOnlyLookLikeRefusedOnes) {
  const texts names = {"...", "COM0", "COM10", "CONX", "LPT", "LPTX", "XCON", "a .b"};
  std::vector<entry> entries;
  for (const std::string& name : names) entries.push_back({name, name});
  extract(entries);
  EXPECT_EQ(names_in("D:\\"), names);
  EXPECT_EQ(new_messages(), texts{closing + "D:\\"});
}

TEST_F(extraction_test, NamesTwentyRefusedEntriesAndCountsTheOthers) {
  for (const std::size_t count : {20, 21, 25}) {
    extract(std::vector<entry>(count, {"COM1", "x"}));
    const texts told = new_messages();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(std::count(told[0].begin(), told[0].end(), '>'), 20);
    const std::string more = "\nand " + std::to_string(count - 20) + " more.";
    EXPECT_EQ(told[0].find(more) != std::string::npos, count > 20) << told[0];
  }
}

// Cut anywhere, an archive gives the entries that it holds whole, and no half of one.
TEST_F(extraction_test, LeavesNothingHalfWrittenOfATruncatedArchive) {
  const std::vector<entry> entries = {
      {"A", some_bytes(20)}, {"B", ""}, {"C", some_bytes(17, 2)}, {"D", some_bytes(9, 3)}};
  const std::string whole = archive_bytes(entries);
  const std::size_t data = whole.size() - 46;
  for (std::size_t cut = data; cut <= whole.size(); ++cut) {
    for (const std::string& name : names_in("D:\\")) std::filesystem::remove(place("D:\\" + name));
    open_bytes(whole.substr(0, cut));
    extract_into("D:\\");
    files expected = {{"B", ""}};
    texts missing;
    for (const auto& [at, size, name] : {std::tuple{0, 20, "A"}, {20, 17, "C"}, {37, 9, "D"}}) {
      if (cut >= data + static_cast<std::size_t>(at + size)) {
        expected[name] = whole.substr(data + static_cast<std::size_t>(at), std::size_t(size));
      } else {
        missing.push_back(name);
      }
    }
    ASSERT_EQ(files_in("D:\\"), expected) << cut;
    std::string told = "These entries were not extracted:";
    for (const std::string& name : missing)
      told += "\n>" + name + "<: the archive ends before it does";
    ASSERT_EQ(new_messages(),
              missing.empty() ? texts{closing + "D:\\"} : (texts{told, closing + "D:\\"}));
  }
}

TEST_F(extraction_test, NeverWritesToTheOpenArchive) {
  std::filesystem::create_directory_symlink(root / "c", place("D:\\link"));
  const std::vector<entry> entries = {
      {"A.TXT", "a"}, {"OSTRANE.DAT", some_bytes(500)}, {"LINKED", "xyz"}, {"Z.TXT", "z"}};
  const std::string bytes = archive_bytes(entries);
  open_bytes(bytes);
  std::filesystem::create_symlink("ostrane.dat", place("C:\\linked"));
  for (const char* folder : {"C:\\", "D:\\link"}) {
    extract_into(folder);
    EXPECT_EQ(read("C:\\ostrane.dat"), bytes);
    EXPECT_EQ(read("C:\\A.TXT") + read("C:\\Z.TXT"), "az");
    EXPECT_EQ(names_in("C:\\"), (texts{"A.TXT", "Z.TXT", "linked", "ostrane.dat", "program"}));
    const texts told = new_messages();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0],
              "These entries were not extracted:"
              "\n>OSTRANE.DAT<: it would be written over the open archive"
              "\n>LINKED<: it would be written over the open archive");
    std::filesystem::remove(place("C:\\A.TXT"));
    std::filesystem::remove(place("C:\\Z.TXT"));
  }
}

TEST_F(extraction_test, ReadsStraightOnPastEntriesThatCannotBeWritten) {
  make_folder("D:\\FOLDER\\inside");
  extract({{"FOLDER", some_bytes(3000)}, {"Z.TXT", "after"}});
  EXPECT_EQ(read("D:\\Z.TXT"), "after");
  EXPECT_TRUE(exists("D:\\FOLDER\\inside"));
  const texts told = new_messages();
  ASSERT_EQ(told.size(), 2U);
  EXPECT_NE(told[0].find(">FOLDER<: D:\\FOLDER cannot be opened: it is a folder."),
            std::string::npos)
      << told[0];
}

// An index out of order: a size below 0 takes nothing and moves nothing, offsets seek nothing.
TEST_F(extraction_test, CopesWithOffsetsOutOfOrder) {
  const std::string index =
      index_bytes(6, {{106, "A"}, {116, "B"}, {110, "C"}, {115, "D"}, {INT32_MIN, "E"}, {-9, ""}});
  const std::string data = some_bytes(40);
  recording_screen screen;
  screen.at_refresh = [&] {
    if (screen.texts.size() == 3) {
      EXPECT_EQ(Form3.ProgressBar1.Max(), 0);
    }
  };
  open_bytes(index + data);
  screen.texts.clear();
  extract_into("D:\\");
  EXPECT_EQ(files_in("D:\\"), (files{{"A", data.substr(0, 10)}, {"C", data.substr(10, 5)}}));
  ASSERT_EQ(screen.messages.size(), 2U);
  for (const char* name : {">B<", ">D<", ">E<"}) {
    EXPECT_NE(screen.messages[0].find(name), std::string::npos) << screen.messages[0];
  }
}

TEST_F(extraction_test, AFullDiskStopsTheJobWithTheNameOfTheFile) {
  write("D:\\OLD.TXT", "0");
  open_archive({{"A.TXT", "a"}, {"BIG.SHP", some_bytes(3000000)}, {"OLD.TXT", "new"}});
  {
    const full_disk disk;
    extract_into("D:\\");
  }
  const texts told = new_messages();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].find("The extraction was stopped. D:\\BIG.SHP cannot be written: "), 0U)
      << told[0];
  EXPECT_EQ(files_in("D:\\"), (files{{"A.TXT", "a"}, {"OLD.TXT", "0"}}));
  EXPECT_TRUE(Form4.Visible());
  EXPECT_FALSE(Form3.Visible());
}

class new_folder_test : public extraction_test {
 protected:
  // Presses "Make New Folder" with these fields and gives where the dialog stands then.
  texts make(const std::string& in, const std::string& name) {
    user::type(Form4.Text1, in);
    user::type(Form4.Text2, name);
    user::click(Form4.Command1);
    EXPECT_EQ(Form4.Text2.Text(), name);
    return {Form4.Dir1.Path(), Form4.File1.Path(), Form4.Text1.Text()};
  }
};

TEST_F(new_folder_test, MakesTheFolderAndGoesThereOrTellsWhyNot) {
  open_archive({{"A.TXT", "a"}});
  write("D:\\file", "");
  make_folder("D:\\there");
  user::click(Form1.mnu_ext);
  const struct {
    const char* in;
    const char* name;
    const char* now;    // where the dialog stands; null: where it stood, with Text1 as typed
    const char* error;  // in the message
  } cases[] = {
      {"D:\\", "", nullptr, nullptr},      {"D:\\", "   ", nullptr, nullptr},
      {"D:\\", "one", "D:\\one", nullptr}, {"D:\\one", " two", "D:\\one\\ two", nullptr},
      {"D:\\", "there", nullptr, " 58"},   {"D:\\", "THERE", nullptr, " 58"},
      {"D:\\", "file", nullptr, " 58"},    {"D:\\missing", "x", nullptr, " 53"},
      {"E:", "x", nullptr, " 53"},         {"Q:", "x", nullptr, " 68"},
      {"", "three", "C:\\three", nullptr},
  };
  std::string stands = Form4.Dir1.Path();
  for (const auto& c : cases) {
    const texts now = make(c.in, c.name);
    if (c.now != nullptr) stands = c.now;
    EXPECT_EQ(now, (texts{stands, stands, c.now != nullptr ? stands : c.in})) << c.name;
    texts told;
    if (c.error != nullptr) {
      told = {
          "Problem encountered while trying to make new Folder. The error reported from "
          "Windows is: Error Number: " +
          std::string(c.error)};
    }
    EXPECT_EQ(new_messages(), told) << c.name;
    EXPECT_TRUE(std::filesystem::is_directory(place(stands)));
  }
  EXPECT_EQ(names_in("D:\\"), (texts{"file", "one", "there"}));
}

// A folder that is where the dialog stands raises no change, and still all shows what it holds.
TEST_F(new_folder_test, MakesAFolderAnewThatWasTakenAway) {
  open_archive({{"A.TXT", "a"}});
  write("D:\\one\\file", "");
  user::click(Form1.mnu_ext);
  Form4.Dir1.Path = "D:\\one";
  EXPECT_EQ(Form4.File1.ListCount(), 1);
  std::filesystem::remove_all(place("D:\\one"));
  EXPECT_EQ(make("D:\\", "one"), (texts{"D:\\one", "D:\\one", "D:\\one"}));
  EXPECT_EQ(Form4.File1.ListCount(), 0);
  EXPECT_EQ(new_messages(), texts{});
}

}  // namespace
}  // namespace ostrane
