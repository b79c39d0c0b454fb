#include "tool_fixture.h"

namespace ostrane {

// Runs the examples of docs/formats.md through the tool.
struct formats_test : tool_test {
  // The lines of the block that starts with ``` and `word`.
  static texts block(const std::string& word) {
    std::ifstream page(FORMATS_PAGE);
    texts lines;
    std::string line;
    while (std::getline(page, line) && line != "```" + word) continue;
    while (std::getline(page, line) && line != "```") lines.push_back(line);
    return lines;
  }

  static std::string text_file(const std::string& word) {
    std::string text;
    for (const std::string& line : block(word)) text += line + "\r\n";
    return text;
  }

  // A row is an offset, bytes in hex, and after three blanks a comment.
  static std::string example_archive() {
    std::string bytes;
    for (const std::string& row : block("hex")) {
      std::istringstream numbers(row.substr(0, row.find("   ", 4)));
      std::size_t offset = 0;
      numbers >> offset >> std::hex;
      EXPECT_EQ(offset, bytes.size()) << row;
      for (int byte = 0; numbers >> byte;) bytes += static_cast<char>(byte);
    }
    return bytes;
  }
};

TEST_F(formats_test, TheArchiveExampleIsShownAndBuiltAsDocumented) {
  const std::string archive = example_archive();
  ASSERT_EQ(archive.size(), 141U);
  write("C:\\program\\iconlist.csv", text_file("iconlist"));
  restart();
  open_bytes(archive);

  click_row("A.SHP");
  EXPECT_EQ(Form1.Frame1.Caption(), "A.SHP - A red corner");
  texts picture;
  const forms_layer::picture_box& slot = Form1.s16_image(1);
  const std::map<forms_layer::colour, char> signs = {{forms_layer::picture_box::unset, '.'},
                                                     {forms_layer::rgb(224, 48, 32), '2'},
                                                     {forms_layer::rgb(48, 192, 64), '3'}};
  for (std::int32_t y = 0; y < slot.rows(); ++y) {
    picture.emplace_back();
    for (std::int32_t x = 0; x < slot.columns(); ++x) picture.back() += signs.at(slot.pixel(x, y));
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
}

TEST_F(formats_test, TheListExamplesAreWrittenAndComparedAsDocumented) {
  write("D:\\lists\\shplist.txt", std::string(500, 'x'));
  restart("D:\\lists");
  open_bytes(example_archive());
  user::click(Form1.mnu_save);
  EXPECT_EQ(read("D:\\lists\\shplist.txt"), text_file("saved"));
  write("D:\\list.txt", text_file("shiplist"));
  compare_with("D:\\", "list.txt");
  EXPECT_EQ(read("C:\\Shiplist-compare.txt"), text_file("report"));
}

}  // namespace ostrane
