#include <png.h>

#include <cstdlib>
#include <memory>

#include "command_fixture.h"
#include "data/icon_file.h"
#include "random_icons.h"

namespace ostrane {
namespace {

struct pictures_test : command_test {
  // Every third colour stands twice.
  static std::string palette() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
      const int colour = i % 3 == 2 ? i - 1 : i;
      bytes += {static_cast<char>(colour), static_cast<char>(colour / 2), '\x40', '\0'};
    }
    return bytes;
  }
  static void write_archive(const std::string& icons) {
    write("a.dat", archive_bytes({{"F.SHP", icons}, {"GAME.PAL", palette()}}));
  }

  // The heads and cells of an icon file, one text for each icon.
  static texts icons_of(const std::string& path) {
    texts all;
    files::binary_file file;
    file.open_to_read({path, path});
    const icon_file icons = read_icon_file(file, 0, static_cast<std::int32_t>(file.size()));
    const auto stream = std::make_unique<icon_stream>();
    for (const std::int32_t position : icons.positions) {
      icon_head head;
      read_icon_head(file, position, head);
      std::string text;
      for (const std::int64_t part :
           {std::int64_t{head.no_of_rows}, std::int64_t{head.no_of_cols}, std::int64_t{head.spare},
            std::int64_t{head.col_start}, std::int64_t{head.row_start}, std::int64_t{head.col_end},
            std::int64_t{head.row_end}}) {
        text += std::to_string(part) + ' ';
      }
      if (classify_icon(head) == icon_kind::drawable) {
        const picture drawn = read_icon_picture(*stream, file, icons, head, position);
        for (int row = 0; row < drawn.rows(); ++row) {
          for (const std::int16_t cell : drawn.row(row)) text += std::to_string(cell) + ',';
        }
      }
      all.push_back(text);
    }
    return all;
  }
};

TEST_F(pictures_test, AnExportedIconFileComesBackWithoutLossAndNoLonger) {
  const char* asked = std::getenv("OSTRANE_ICONS");
  const int count = asked == nullptr ? 400 : std::atoi(asked);
  random_icons random(3);
  for (int made = 0; made < count; made += 400) {
    std::vector<shp_icon> icons;
    while (icons.size() < 400) icons.push_back(random.next());
    const std::string file = shp_file(icons, {'\x80', '\0', 'x', '"'});
    write_archive(file);
    write("old.shp", file);
    fs::remove_all("out");
    fs::create_directory("out");
    run({"export", "a.dat", "F.SHP", "-d", "out"});
    EXPECT_EQ(run({"import", "out", "-o", "new.shp", "--palette", "a.dat"}).errors, "");
    const texts old_icons = icons_of("old.shp");
    ASSERT_EQ(icons_of("new.shp"), old_icons);
    EXPECT_EQ(read("new.shp").substr(0, 8), file.substr(0, 8));
    EXPECT_LT(fs::file_size("new.shp"), fs::file_size("old.shp"));
    if (made == 0) {
      EXPECT_EQ(run({"import", "out", "-o", "like.shp", "--palette", "a.dat", "--like", "old.shp"})
                    .status,
                0);
      EXPECT_EQ(read("like.shp"), read("new.shp"));
    }
  }
}

// A PNG as a painting program may write it.
std::string png_with(int type, int depth, const std::vector<png_byte>& rows, int width,
                     int height) {
  png_image image = {};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(width);
  image.height = static_cast<png_uint_32>(height);
  image.format = static_cast<png_uint_32>(type);
  EXPECT_EQ(depth, 8);
  png_alloc_size_t size = 0;
  png_image_write_to_memory(&image, nullptr, &size, 0, rows.data(), 0, nullptr);
  std::string bytes(size, '\0');
  png_image_write_to_memory(&image, bytes.data(), &size, 0, rows.data(), 0, nullptr);
  bytes.resize(size);
  return bytes;
}

TEST_F(pictures_test, OtherColoursGoToTheNearestAndAreCounted) {
  write("GAME.PAL", palette());
  // Colour 4 itself, a step beside it, half transparent and hardly set.
  write("p.png", png_with(PNG_FORMAT_RGBA, 8,
                          {0x40, 2, 4, 255, 0x41, 2, 4, 255, 0x40, 2, 4, 200, 9, 9, 9, 100}, 4, 1));
  const outcome seen = run({"import", "p.png", "-o", "p.shp", "--palette", "GAME.PAL"});
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(
      seen.errors,
      "ostrane-dat: p.shp: 3 pixels of 1 pictures were not exact and got the nearest colour\n");
  EXPECT_EQ(icons_of("p.shp"), texts{"0 3 0 0 0 2 0 4,4,4,-1,"});
}

TEST_F(pictures_test, BadSourcesAreToldAndNothingIsWritten) {
  write("GAME.PAL", palette());
  const std::string good = png_with(PNG_FORMAT_GRAY, 8, {1, 2, 3, 4}, 2, 2);
  write("cut.png", good.substr(0, good.size() / 2));
  std::string huge = good;
  huge.replace(16, 8, std::string("\0\0\x7F\xFF\0\0\x07\xFF", 8));
  write("huge.png", huge);
  write("up.json",
        R"({"format":"ostrane-icons","identifier":"ICON","scale":1,"icons":[{"file":"../p.png",
    "no_of_rows":0,"no_of_cols":0,"spare":0,"col_start":0,"row_start":0,"col_end":0,"row_end":0}]})");
  write("far.json",
        R"({"format":"ostrane-icons","identifier":"ICON","scale":1,"icons":[{"file":"p.png",
    "no_of_rows":0,"no_of_cols":1,"spare":0,"col_start":-2147483648,"row_start":0,"col_end":0,"row_end":0}]})");
  write("p.png", png_with(PNG_FORMAT_GRAY, 8, {1, 2}, 2, 1));
  write("deep.json", std::string(100000, '['));
  for (const char* source :
       {"cut.png", "huge.png", "up.json", "far.json", "deep.json", "none.png"}) {
    const outcome seen = run({"import", source, "-o", "new.shp", "--palette", "GAME.PAL"});
    EXPECT_EQ(seen.status, 2) << source;
    EXPECT_NE(seen.errors.find("ostrane-dat: "), std::string::npos) << source;
    EXPECT_FALSE(fs::exists("new.shp")) << source;
  }
}

TEST_F(pictures_test, PalettesTextsSheetsAndMotionsAreExported) {
  random_icons random(5);
  picture small(2, 1);
  small.set(0, 0, 7);
  write("a.dat", archive_bytes({{"F.SHP", shp_file(std::vector<picture>(5, small))},
                                {"GAME.PAL", palette()},
                                {"N.TXT", std::string("\x80\0", 2)},
                                {"W.WAV", ""}}));
  EXPECT_EQ(run({"export", "a.dat", "*.*"}).errors,
            "ostrane-dat: W.WAV: left out: it is no icon file, palette or text\n");
  EXPECT_EQ(run({"export", "a.dat", "f.shp", "--as", "sheet", "--scale", "2"}).status, 0);
  EXPECT_EQ(run({"export", "a.dat", "f.shp", "--as", "gif", "--pace", "7"}).status, 0);
  EXPECT_EQ(read("N.txt"), "\xE2\x82\xAC ");
  EXPECT_NE(read("GAME.gpl").find("Columns: 16\n#\n 64   0   0\tIndex 0\n 64   0   1\tIndex 1\n"),
            std::string::npos);
  EXPECT_NE(read("F-sheet.json").find("\"w\":12,\"h\":4"), std::string::npos);
  EXPECT_NE(read("F.gif").find(std::string("\x21\xF9\x04\x09\x07\x00\x00\x00", 8)),
            std::string::npos);
}

}  // namespace
}  // namespace ostrane
