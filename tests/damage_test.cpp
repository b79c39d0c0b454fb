#include "icon_fixture.h"

using namespace ostrane;

using damage_test = icon_test;

// A small archive with each kind of entry, cut at each byte, or with one changed before the text.
TEST_F(damage_test, HandlesAnyLengthAndAnyChangedByte) {
  const std::string icons =
      shp_file({plain_icon(9, 5, 7), refused_icon(4, 4), blank_icon(3, 3), plain_icon(2, 2, 1)});
  const std::string whole =
      archive_bytes({{"I.SHP", icons}, {"N.TXT", "text"}, {"GAME.PAL", std::string(40, 'p')}});
  texts damaged = {whole};
  for (std::size_t at = 0; at < whole.size(); ++at) {
    damaged.push_back(whole.substr(0, at));
    for (const int flip : {0x01, 0x7F, 0x80, 0xFF}) {
      if (at >= whole.size() - 44) break;
      damaged.push_back(whole);
      damaged.back()[at] = static_cast<char>(whole[at] ^ flip);
    }
  }
  for (const std::string& bytes : damaged) {
    SCOPED_TRACE(&bytes - damaged.data());
    restart();
    open_bytes(bytes);
    const std::int32_t rows = std::min(Form1.List1.ListCount(), 9);
    for (std::int32_t row = 0; row < rows; ++row) {
      user::select_row(Form1.List1, row);
      for (int series = 0; series < 3; ++series) user::click(Form1.Command6);
      user::double_click(Form1.s16_image, 1);
      user::click(Form3.message);
      user::click(Form1.Command5);
      user::tick(Form1.Timer1);
      user::click(Form1.Command5);
      ASSERT_TRUE(Form1.Visible() && Form1.Enabled() && !Form3.Visible());
    }
    if (rows > 0) extract_into("D:\\");
    ASSERT_LE(new_messages().size(), 25U);
    ASSERT_TRUE(read("C:\\ostrane.dat") == bytes);
  }
}

// More icons than are shown, of one kind each.
TEST_F(damage_test, LimitsTheMessagesAboutBadIcons) {
  constexpr std::size_t many = 5001;
  shp_icon huge = blank_icon(2, 2);
  huge.head.no_of_rows = 32767;
  // The icon, the number added to the positions of the icons, and the number of messages.
  const std::tuple<shp_icon, int, std::size_t> cases[] = {
      {plain_icon(1, 1, 1), 0, 1},       {refused_icon(1, 1), 0, 21},          {huge, 0, 21},
      {plain_icon(1, 1, 1), 1 << 30, 2}, {plain_icon(1, 1, 1), -(1 << 30), 2},
  };
  for (const auto& [icon, moved_by, count] : cases) {
    std::string file = shp_file(std::vector<shp_icon>(many, icon));
    for (std::size_t at = 11; at < 8 + 8 * many; at += 8)
      file[at] = static_cast<char>(file[at] + moved_by / (1 << 24));
    restart();
    open_archive({{"I.SHP", file}});
    click_row("I.SHP");
    const texts messages = new_messages();
    ASSERT_EQ(messages.size(), count) << moved_by;
    EXPECT_EQ(
        messages[0],
        "The file: I.SHP says that it holds 5001 pictures. Only the first 5000 are displayed.");
    EXPECT_EQ(Form1.Text2.Text(), "5000");
    for (std::size_t i = 1; i < messages.size(); ++i) {
      EXPECT_EQ(messages[i].ends_with("are refused without a message."), i == 20);
    }
  }
}
