#include "test_screen.h"

using namespace ostrane;

using progress_test = tool_test;

// The progress window hides before the final message. The main window is shown before the message
// of a build and after that of an extraction. A build sets a bar before it opens the file.
TEST_F(progress_test, ShowsEachFileThenTheMainWindow) {
  test_screen screen;
  for (const char* folder : {"C:\\", "C:\\program\\"})
    write(folder + std::string("A b.txt"), "12345");
  restart("C:\\program");
  const std::string building = "dialog progress bars Ostrane.dat tool - Make new Ostrane.dat|";
  const std::string offsets = "Calculation internal offsets for the files in Ostrane.dat";
  user::click(Form1.mnu_make);
  failing_calls watched;
  std::string first;  // of the calls for the file
  watched.before_call = [&first](const std::string& call) {
    if (first.empty() && Form3.ProgressBar1.Max() == 5) first = call;
  };
  user::click(Form5.Command1);  // an empty Text1 means the root of the current drive
  const std::string file = "Current File : \\A b.txt\r\nCurrent File Number:  0\r\n";
  const std::string hiding = "dialog progress hides bars";
  const std::string made = "main Your new Ostrane.dat has been created and saved in:\\ostrane.dat";
  EXPECT_EQ(screen.log, (texts{building, building + offsets, building + offsets,
                               building + file + "Total Number of Files:  1", hiding, made}));
  EXPECT_EQ(first, "open_to_read");
  open_archive({{"A.SHP", "a"}, {std::string("B\0C", 3), ""}});
  screen.log.clear();
  extract_into("");
  const std::string extracting = "dialog progress bars Ostrane.dat tool - File Extraction|";
  const std::string of_2 = "\r\nTotal number of files:  2";
  EXPECT_EQ(screen.log,
            (texts{extracting + "Extracting file: \\A.SHP\r\nFile number:      1" + of_2,
                   extracting + "Extracting file: \\B C\r\nFile number:      2" + of_2, hiding,
                   "dialog All files from Ostrane.dat has been extracted into: \\"}));
  EXPECT_TRUE(Form1.Visible() && !Form4.Visible());
}

// The number of files and their size; then the Max of both bars and their moves, for a build and
// for the extraction of its archive.
TEST_F(progress_test, BarsMoveEveryNthFileAndBlock) {
  const std::tuple<std::size_t, std::size_t, const char*, const char*> cases[] = {
      {0, 0, "1 100", "0 100"},
      {48, 1, "49 1", "47 1"},
      {97, 1, "98 1 2:96", "96 1 2:48"},
      {194, 0, "195 0 2:96 2:193", "193 0 2:48 2:97 2:146"},
      {4, 700, "5 700", "3 700 1:384 1:128"},
      {3, 1024, "4 1024", "2 1024 1:128 1:256"},
      {2, 1025, "3 1025 1:1024", "1 1025 1:1024"},
      {1, 20000, "2 20000 1:8192 1:16384 1:1024 1:2048 1:3072",
       "0 20000 1:8192 1:16384 1:1024 1:2048 1:3072"},
  };
  test_screen screen;
  const auto bars = [&screen] {
    std::ostringstream all;
    all << Form3.ProgressBar2.Max() << ' ' << Form3.ProgressBar1.Max() << screen.moves;
    EXPECT_TRUE(Form3.ProgressBar1.filled() >= 0 && Form3.ProgressBar2.filled() <= 1);
    screen.reset_bars();
    return all.str();
  };
  for (const auto& [files, size, built, extracted] : cases) {
    file_map sources;
    for (std::size_t i = 0; i < files; ++i) sources[std::to_string(i)] = std::string(size, 'x');
    restart_with(sources);
    screen.reset_bars();
    build_in();
    EXPECT_EQ(bars(), built);
    open_archive("C:\\work");
    extract_into("D:\\");
    EXPECT_EQ(bars(), extracted);
  }
}
