#include "tool_fixture.h"

using namespace ostrane;

using extraction_test = tool_test;

const std::string extracted = " files from Ostrane.dat has been extracted into: ";
const std::string skipped = "\nThese entries were not extracted:";

// An entry overwrites a file from its first byte on and does not truncate it.
TEST_F(extraction_test, OverwritesFilesWithoutTruncatingThem) {
  write("D:\\long.txt", "0123456789");
  write("D:\\EMPTY", "kept");
  const std::vector<entry> entries = {{"LONG.TXT", "abc"}, {"EMPTY", ""}, {"Twice", "first"},
                                      {"TWICE", "2nd"},    {"tWICE", ""}, {".Dot", "1"},
                                      {".DOT", "2"}};
  open_archive(entries);
  extract_into("D:\\");
  EXPECT_EQ(
      files_in("D:\\"),
      (file_map{{"long.txt", "abc3456789"}, {"EMPTY", "kept"}, {"Twice", "2ndst"}, {".Dot", "2"}}));
  EXPECT_EQ(new_messages(), texts{"5 of 7" + extracted + "D:\\" + skipped +
                                  "\n>Twice<: entry 4 was written over it"
                                  "\n>.Dot<: entry 7 was written over it"
                                  "\nThese files are hidden on this system:"
                                  "\n>.Dot<: its name begins with a dot"});
}

// Only the first offset is a seek; a negative size skips the entry. The second archive ends within
// its entry. The sizes of the third one add up to more than any file has.
TEST_F(extraction_test, SkipsEntriesOutsideAnyFile) {
  open_bytes(index_bytes(4, {{72, "A"}, {82, "B"}, {76, "C"}, {81, ""}}) + "0123456789abcdefghij");
  extract_into("D:\\");
  EXPECT_EQ(files_in("D:\\"), (file_map{{"A", "0123456789"}, {"C", "abcde"}}));
  EXPECT_EQ(new_messages(), texts{"2 of 3" + extracted + "D:\\" + skipped +
                                  "\n>B<: the index gives it a size below 0"});
  const std::string whole = archive_bytes({{"A", some_bytes(300000)}});
  open_bytes(whole.substr(0, whole.size() - 1));
  extract_into("D:\\");
  EXPECT_EQ(read("D:\\A"), "0123456789");
  EXPECT_EQ(new_messages(), texts{"0 of 1" + extracted + "D:\\" + skipped +
                                  "\n>A<: the archive ends before it does"});
  user::click(Form4.Command3);
  std::vector<std::pair<std::int32_t, std::string>> records;
  for (int i = 0; i < 10000; ++i) records.push_back({i % 2 == 0 ? 38 : INT32_MAX, "Z"});
  open_bytes(index_bytes(10000, records));
  extract_into("D:\\");
  EXPECT_TRUE(new_messages().front().starts_with("0 of 9999 files") && Form4.Visible());
  EXPECT_EQ(names_in("D:\\"), (texts{"A", "C"}));
}

// Names that differ in case are one file, also if the first could not be written.
TEST_F(extraction_test, WritesOneFileForNamesThatDifferInCase) {
  open_archive({{"Abc", "1"}, {"ABC", "22"}, {"abc", "333"}, {"aBC", "4444"}});
  for (const std::string first_of : {"", "write_some"}) {
    const failing_calls fails(INT32_MAX, {.reason = EIO}, first_of);
    extract_into("D:\\");
    EXPECT_EQ(files_in("D:\\"), (file_map{{first_of.empty() ? "Abc" : "ABC", "4444"}}));
    for (const std::string& name : names_in("D:\\")) fs::remove(disk_path("D:\\" + name));
  }
  const failing_calls fails("close_file", EIO);
  new_messages();
  extract_into("D:\\");
  const std::string lost = "<: its file cannot be written: Input/output error";
  EXPECT_EQ(new_messages(), texts{"0 of 4" + extracted + "D:\\" + skipped + "\n>Abc" + lost +
                                  "\n>ABC" + lost + "\n>abc" + lost + "\n>aBC" + lost});
}

// The dialog stays, and no folder is made.
TEST_F(extraction_test, WritesNothingWithoutAFolderOrAnArchive) {
  const auto misplace = [] { open_bytes(index_bytes(2, {{-1, "A"}, {9, ""}})); };
  const std::tuple<const char*, std::function<void()>, std::string> cases[] = {
      {"E:\\", nothing, "The folder E:\\ is not there. Make it or choose another."},
      {"D:\\", [] { open_archive("C:\\program"); }, "No archive is open. Read one first."},
      {"D:\\", misplace, "The index of C:\\ostrane.dat puts entries before the file."},
      {"D:\\", change_archive, "C:\\ostrane.dat has changed since it was read. Read it again."},
  };
  for (const auto& [folder, prepare, message] : cases) {
    restart();
    open_archive({{"A.TXT", "a"}});
    prepare();
    new_messages();
    extract_into(folder);
    EXPECT_EQ(new_messages(), texts{message + " Nothing was extracted."});
    EXPECT_TRUE(Form4.Visible() && !Form3.Visible() && !Form1.Visible());
    EXPECT_EQ(names_in("D:\\"), texts{});
  }
}

// At most 20 are reported. A skipped entry must not shift the bytes of the next ones. The last
// names only resemble refused ones.
TEST_F(extraction_test, WritesSafeNamesWithBlanksForNulsAndSkipsOthers) {
  const std::pair<const char*, texts> refused[] = {
      {"it has no name", {""}},
      {"its name means a folder", {".", ".."}},
      {"its name contains a path separator", {"A\\B", "..\\UP.TXT", "A/B", "/etc/x", "C:X"}},
      {"its name contains a control character",
       {"A\tB", "A\x7F", "\x81", "\x8D.X", "\x8F", "\x90", "\x9D"}},
      {"its file cannot be opened: it is a folder", {"DIR"}},
      {"its name means a device",
       {"CON", "prn.txt", "AUX.A.B", "Nul .TXT", "COM1", "lpt9.shp", "COM\xB9", "LPT\xB3.TXT",
        "NUL", "COM2", "CON.A"}},
  };
  make_folder("D:\\in\\DIR");
  std::vector<entry> entries;
  std::string message = "13 of 40" + extracted + "D:\\in\\" + skipped;
  for (const auto& [reason, names] : refused) {
    for (std::string name : names) {
      entries.push_back({name, some_bytes(1000 + entries.size())});
      for (char& c : name) c = std::strchr("\t\x7F\x81\x8D\x8F\x90\x9D", c) != nullptr ? '?' : c;
      if (entries.size() <= 20) message += "\n>" + name + "<: " + reason;
    }
  }
  file_map written = {{"EMPTY", ""}, {"c.txt", "c"}, {"A  B.TXT", "a"}, {"\xC3\x89T", "e"}};
  entries.insert(
      entries.end(),
      {{"EMPTY", ""}, {" c.txt ", "c"}, {std::string("\0A\0 B.TXT\0\0", 10), "a"}, {"\xC9T", "e"}});
  for (const char* name :
       {"ABCDEFGHI.SHP", "..a", "COM0", "COM10", "CONX", "LPT", "LPTX", "XCON", "a .b"}) {
    entries.push_back({name, name});
    written[name] = name;
  }
  open_archive(entries);
  extract_into("D:\\in");
  EXPECT_EQ(files_in("D:\\in"), written);
  EXPECT_EQ(names_in("D:\\"), texts{"in"});
  EXPECT_EQ(new_messages(), texts{message + "\nand 7 more.\nThese files are hidden on this system:"
                                            "\n>..a<: its name begins with a dot"});
}
