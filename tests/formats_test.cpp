#include "tool_fixture.h"

using namespace ostrane;

// Runs the examples of docs/formats.md through the tool.
struct formats_test : tool_test {
  // The lines of the block that starts with ``` and `word`.
  static std::string block(const std::string& word) {
    std::ifstream page(FORMATS_PAGE);
    std::string text;
    std::string line;
    while (std::getline(page, line) && line != "```" + word) continue;
    while (std::getline(page, line) && line != "```") text += line + "\r\n";
    return text;
  }

  // A row is an offset, bytes in hex, and after three blanks a comment.
  static std::string example_archive() {
    std::string bytes;
    std::istringstream rows(block("hex"));
    for (std::string row; std::getline(rows, row);) {
      std::istringstream numbers(row.substr(0, row.find("   ", 4)));
      std::size_t offset = 0;
      numbers >> offset >> std::hex;
      EXPECT_EQ(offset, bytes.size()) << row;
      for (int byte = 0; numbers >> byte;) bytes += static_cast<char>(byte);
    }
    return bytes;
  }
};

TEST_F(formats_test, TheDocumentedExamplesAreReadAndWritten) {
  const std::string archive = example_archive();
  write("C:\\program\\iconlist.csv", block("iconlist"));
  restart();
  open_bytes(archive);

  click_row("A.SHP");
  EXPECT_EQ(Form1.Frame1.Caption(), "A.SHP - A red corner");
  std::string picture;
  const forms_layer::picture_box& slot = Form1.s16_image(1);
  const std::map<forms_layer::colour, char> signs = {{forms_layer::picture_box::unset, '.'},
                                                     {forms_layer::rgb(224, 48, 32), '2'},
                                                     {forms_layer::rgb(48, 192, 64), '3'}};
  for (std::int32_t y = 0; y < slot.rows(); ++y) {
    for (std::int32_t x = 0; x < slot.columns(); ++x) picture += signs.at(slot.pixel(x, y));
    picture += "\r\n";
  }
  EXPECT_EQ(picture, block("picture"));
  click_row("B.TXT");
  EXPECT_EQ(Form1.Text6.Text(), "Hi\r\n");
  click_row("GAME.PAL");
  EXPECT_EQ(Form1.Frame1.Caption(), "GAME.PAL - The colours; four of them");

  make_folder("D:\\out");
  extract_into("D:\\out");
  build_in("D:\\out");
  EXPECT_EQ(read("D:\\out\\OSTRANE.DAT"), archive);

  write("D:\\lists\\shplist.txt", std::string(500, 'x'));
  restart("D:\\lists");
  open_bytes(archive);
  user::click(Form1.mnu_save);
  EXPECT_EQ(read("D:\\lists\\shplist.txt"), block("saved"));
  write("D:\\list.txt", block("shiplist"));
  run_comparison("D:\\", "list.txt");
  EXPECT_EQ(read("C:\\Shiplist-compare.txt"), block("report"));
}
