#include <png.h>

#include <cstdlib>
#include <memory>

#include "command_fixture.h"
#include "data/icon_file.h"
#include "pictures/colour_finder.h"
#include "random_icons.h"

namespace ostrane {

struct pictures_test : command_test {
  // Every third colour is a duplicate.
  static std::string palette() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
      const int colour = i % 3 == 2 ? i - 1 : i;
      bytes += {static_cast<char>(colour), static_cast<char>(colour / 2), '\x40', '\0'};
    }
    return bytes;
  }
  static void write_archive(const std::string& icons) {
    write_bytes("a.dat", archive_bytes({{"F.SHP", icons}, {"GAME.PAL", palette()}}));
  }

  // The heads and cells of an icon file, one text for each icon.
  static texts icons_of(const std::string& path) {
    texts all;
    files::binary_file file;
    file.open_to_read({path, u8""});
    const icon_file icons = read_icon_file(file, 0, static_cast<std::int32_t>(file.size()));
    const auto stream = std::make_unique<icon_stream>();
    for (const std::int32_t position : icons.positions) {
      icon_head head;
      read_icon_head(file, position, head);
      std::ostringstream text;
      text << head.no_of_rows << ' ' << head.no_of_cols << ' ' << head.spare << ' '
           << head.col_start << ' ' << head.row_start << ' ' << head.col_end << ' ' << head.row_end
           << ' ';
      if (classify_icon(head) == icon_kind::drawable) {
        const picture drawn = read_icon_picture(*stream, file, icons, head, position);
        for (int row = 0; row < drawn.rows(); ++row) {
          for (const std::int16_t cell : drawn.row(row)) text << cell << ',';
        }
      }
      all.push_back(text.str());
    }
    return all;
  }
};

TEST_F(pictures_test, ExportAndImportKeepAnIconFileAndDoNotLengthenIt) {
  const char* wanted = std::getenv("OSTRANE_ICONS");
  const int count = wanted == nullptr ? 400 : std::atoi(wanted);
  random_icons random(3);
  for (int made = 0; made < count; made += 400) {
    std::vector<shp_icon> icons;
    while (icons.size() < 400) icons.push_back(random.next());
    const std::string file = shp_file(icons, {'\x80', '\0', 'x', '"'});
    write_archive(file);
    write_bytes("old.shp", file);
    fs::remove_all("out");
    fs::create_directory("out");
    run("export a.dat F.SHP -d out");
    EXPECT_EQ(run("import out -o new.shp --palette a.dat").errors, "");
    EXPECT_EQ(run("import out -o a.dat --palette a.dat").status, 2);
    const texts old_icons = icons_of("old.shp");
    ASSERT_EQ(icons_of("new.shp"), old_icons);
    EXPECT_EQ(bytes_of("new.shp").substr(0, 8), file.substr(0, 8));
    EXPECT_LT(fs::file_size("new.shp"), fs::file_size("old.shp"));
    EXPECT_EQ(run("import out -o like.shp --palette a.dat --like old.shp").status, 0);
    EXPECT_EQ(bytes_of("like.shp"), bytes_of("new.shp"));
  }
}

// A PNG as a painting program may write it.
static std::string png_with(png_uint_32 format, const std::vector<png_byte>& rows,
                            png_uint_32 width, png_uint_32 height) {
  png_image image = {};
  image.version = PNG_IMAGE_VERSION;
  image.width = width;
  image.height = height;
  image.format = format;
  png_alloc_size_t size = 0;
  png_image_write_to_memory(&image, nullptr, &size, 0, rows.data(), 0, nullptr);
  std::string bytes(size, '\0');
  png_image_write_to_memory(&image, bytes.data(), &size, 0, rows.data(), 0, nullptr);
  bytes.resize(size);
  return bytes;
}

TEST_F(pictures_test, ChangesAndCountsInexactColours) {
  write_bytes("GAME.PAL", palette());
  // Hardly set, colour 4 itself, a step beside it, and half transparent.
  write_bytes("p.png",
              png_with(PNG_FORMAT_RGBA,
                       {9, 9, 9, 100, 0x40, 2, 4, 255, 0x41, 2, 4, 255, 0x40, 2, 4, 200}, 4, 1));
  const result seen = run("import p.png -o p.shp --palette GAME.PAL");
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(
      seen.errors,
      "ostrane-dat: p.shp: 3 pixels of 1 picture changed to the nearest colour or transparency\n");
  EXPECT_EQ(icons_of("p.shp"), texts{"0 3 0 1 0 3 0 -1,4,4,4,"});
  EXPECT_EQ(nearest_index({1, 2, 2, 9}, 2), 1);
  EXPECT_EQ(nearest_index({2, 2, 2, 9}, 2, 0), 1);
}

TEST_F(pictures_test, RefusesBadSourcesAndWritesNothing) {
  write_bytes("GAME.PAL", palette());
  const std::string good = png_with(PNG_FORMAT_GRAY, {1, 2, 3, 4}, 2, 2);
  write_bytes("cut.png", good.substr(0, good.size() / 2));
  std::string huge = good;
  huge.replace(16, 8, std::string("\0\0\x7F\xFF\0\0\x07\xFF", 8));
  write_bytes("huge.png", huge);
  const auto json = [](const std::string& file, const std::string& first_column) {
    return R"({"format":"ostrane-icons","identifier":"ICON","scale":1,"icons":[{"file":")" + file +
           R"(","no_of_rows":0,"no_of_cols":1,"spare":0,"row_start":0,"col_end":0,"row_end":0,)" +
           R"("col_start":)" + first_column + "}]}";
  };
  write_bytes("good.json", json("p.png", "0"));
  write_bytes("in/up.json", json("../p.png", "0"));
  write_bytes("far.json", json("p.png", "-2147483648"));
  write_bytes("p.png", png_with(PNG_FORMAT_GRAY, {1, 2}, 2, 1));
  write_bytes("two.shp", shp_file(std::vector<picture>(2, picture(1, 1))));
  write_bytes("deep.json", std::string(100000, '['));
  for (const char* bad : {"cut.png", "huge.png", "in/up.json", "far.json", "deep.json", "no.png"}) {
    const result seen = run("import " + std::string(bad) + " -o new.shp --palette GAME.PAL");
    EXPECT_EQ(seen.status, 2) << bad;
    EXPECT_NE(seen.errors.find("ostrane-dat: "), std::string::npos) << bad;
    EXPECT_FALSE(fs::exists("new.shp")) << bad;
  }
  EXPECT_EQ(run("import good.json -o new.shp --palette GAME.PAL").status, 1);
  for (const std::string read :
       {"p.png -o p.png", "good.json -o p.png", "good.json -o good.json"}) {
    EXPECT_EQ(run("import " + read + " --palette GAME.PAL").status, 2) << read;
  }
  const result seen = run("import p.png -o new.shp --palette GAME.PAL --like two.shp");
  EXPECT_EQ(seen.status, 1);
  EXPECT_NE(seen.errors.find("1 icon of the old icon file left out"), std::string::npos);
}

TEST_F(pictures_test, ExportsPalettesTextsSheetsAndAnimations) {
  picture small(2, 1);
  small.set(0, 0, 7);
  write_bytes("a.dat", archive_bytes({{"F.SHP", shp_file(std::vector<picture>(5, small))},
                                      {"G.SHP", std::string("ICON\2\0\0\0", 8)},
                                      {"GAME.PAL", palette()},
                                      {"N.TXT", std::string("\x80\0", 2)},
                                      {"W.WAV", ""}}));
  EXPECT_EQ(run("export a.dat *.*").errors,
            "ostrane-dat: G.SHP: its head gives 2 as the number of its icons; only 0 can be read\n"
            "ostrane-dat: W.WAV: skipped: it is not an icon file, palette or text\n");
  EXPECT_EQ(run("export a.dat f.shp --as sheet --scale 2").status, 0);
  EXPECT_EQ(run("export a.dat f.shp --as gif --pace 7").status, 0);
  EXPECT_EQ(bytes_of("N.txt"), "\xE2\x82\xAC ");
  EXPECT_NE(
      bytes_of("GAME.gpl").find("Columns: 16\n#\n 64   0   0\tIndex 0\n 64   0   1\tIndex 1\n"),
      std::string::npos);
  EXPECT_NE(bytes_of("F-sheet.json").find("\"w\":12,\"h\":4"), std::string::npos);
  EXPECT_NE(bytes_of("F.gif").find(std::string("\x21\xF9\x04\x09\x07\x00\x00\x00", 8)),
            std::string::npos);
  // Offset 0 means no palette, so the built-in colours apply.
  std::string bytes = bytes_of("a.dat");
  write_bytes("a.dat", bytes.replace(4 + 2 * 17, 4, std::string(4, '\0')));
  run("export a.dat f.shp");
  EXPECT_NE(bytes_of("F-0001.png").find(std::string("PLTE\0\0\0\xF0\xF0\xF0", 10)),
            std::string::npos);
}

// Icons of a few bytes can have pictures of any size.
TEST_F(pictures_test, RefusesPicturesThatAreTooLargeTogether) {
  const shp_icon large = {{.no_of_rows = 8191, .no_of_cols = 8191}, std::string(1, '\0')};
  const std::string file = shp_file(std::vector<shp_icon>(9, large), default_identifier, true);
  write_bytes("a.dat", archive_bytes({{"F.SHP", file}, {"G.SHP", file}}));
  const result seen = run("export a.dat *.SHP -d out");
  EXPECT_EQ(seen.status, 2);
  EXPECT_EQ(seen.errors,
            "ostrane-dat: The pictures of these entries have more than 1073741824 cells together, "
            "which is the most for one export.\n");
  EXPECT_FALSE(fs::exists("out"));
}

TEST_F(pictures_test, DoesNotExportAnArchiveThatChanges) {
  write_archive(shp_file(std::vector<picture>(2, picture(9, 9))));
  const std::string changed =
      "The archive was written to during the export. Start the export again.\n";
  const result seen = run_beside_a_writer("export a.dat *");
  EXPECT_EQ(seen.status, 2);
  EXPECT_EQ(seen.errors, "ostrane-dat: " + changed);
  EXPECT_EQ(files_at(".").size(), 1U);
}

}  // namespace ostrane
