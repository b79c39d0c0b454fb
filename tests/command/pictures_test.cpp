#include <png.h>

#include <cstdlib>
#include <memory>

#include "command_fixture.h"
#include "data/colour_finder.h"
#include "data/icon_file.h"
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
  // The icon file comes last: a stream that ends early reads on after its entry.
  static void write_archive(const std::string& icons) {
    write_bytes("a.dat", archive_bytes({{"GAME.PAL", palette()}, {"F.SHP", icons}}));
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

// Through PNGs, sheets, cut sheets and GIFs. A GIF cannot show a picture with all 256 indices.
TEST_F(pictures_test, ExportAndImportKeepAnIconFileAndDoNotLengthenIt) {
  const char* wanted = std::getenv("OSTRANE_ICON_FILES");
  random_icons random(3);
  for (int left = wanted == nullptr ? 4 : std::atoi(wanted); left > 0; --left) {
    std::vector<shp_icon> icons;
    random.has_short_stream = false;
    const bool has_full_icons = left % 2 == 0;
    while (icons.size() < (wanted == nullptr ? 40 : 6)) {
      icons.push_back(random.next());
      const bool is_full = icons.back().head.no_of_rows == 15 && icons.back().stream.size() > 250;
      if (is_full && !has_full_icons) icons.pop_back();
    }
    const std::string file = shp_file(icons, {'\x80', '\0', 'x', '"'});
    write_archive(file);
    write_bytes("old.shp", file);
    const texts old_icons = icons_of("old.shp");
    const auto drawable = std::count_if(old_icons.begin(), old_icons.end(),
                                        [](const auto& icon) { return icon.ends_with(','); });
    if (drawable == 0) continue;
    int columns = 1;
    while (columns * columns < drawable) ++columns;
    const auto rows = (drawable + columns - 1) / columns;
    const std::pair<std::string, std::string> rounds[] = {
        {"png", "import png"},
        {"png", "import png --like old.shp"},
        {"sheet", "import sheet"},
        {"sheet", "import sheet/F-sheet.png"},
        {"sheet", "import cut/F-sheet.png --like old.shp --grid " + std::to_string(columns) + "x" +
                      std::to_string(rows)},
        {"gif", "import gif/F.gif --like old.shp"}};
    for (const auto& [form, job] : rounds) {
      if (form == "gif" && has_full_icons) continue;
      SCOPED_TRACE(job);
      fs::remove_all(form);
      run("export a.dat F.SHP --as " + form + " -d " + form);
      fs::create_directory("cut");
      if (form == "sheet") write_bytes("cut/F-sheet.png", bytes_of("sheet/F-sheet.png"));
      EXPECT_EQ(run(job + " -o new.shp --palette a.dat").errors, "");
      ASSERT_EQ(icons_of("new.shp"), old_icons);
      EXPECT_EQ(bytes_of("new.shp").substr(0, 8), file.substr(0, 8));
      EXPECT_TRUE(random.has_short_stream || bytes_of("new.shp").size() <= file.size());
    }
    EXPECT_EQ(run("import png -o a.dat --palette a.dat").status, 2);
    EXPECT_EQ(run("pack a.dat").status, 0);
    run("extract a.dat F.SHP -o packed.shp");
    EXPECT_EQ(icons_of("packed.shp"), old_icons);
    EXPECT_EQ(fs::file_size("packed.shp"), std::min(file.size(), bytes_of("new.shp").size()));
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

// The rows as libpng takes them: several pixels in a byte, or two bytes in a sample.
static std::string plain_png(int depth, int colour_type, int interlace,
                             std::vector<std::vector<png_byte>> rows, png_uint_32 width) {
  std::string bytes;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(
      png, &bytes,
      [](png_structp to, png_bytep from, png_size_t count) {
        static_cast<std::string*>(png_get_io_ptr(to))
            ->append(reinterpret_cast<const char*>(from), count);
      },
      nullptr);
  png_set_IHDR(png, info, width, static_cast<png_uint_32>(rows.size()), depth, colour_type,
               interlace, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  std::vector<png_bytep> pointers;
  for (std::vector<png_byte>& row : rows) pointers.push_back(row.data());
  png_write_image(png, pointers.data());
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return bytes;
}

// Black, white and black pixels, and two black rows.
TEST_F(pictures_test, ReadsEveryKindOfPng) {
  std::string colours(1024, '\x33');
  colours.replace(4, 3, std::string(3, '\0'));
  colours.replace(8, 3, std::string(3, '\xFF'));
  write_bytes("GAME.PAL", colours);
  const std::vector<png_byte> one_bit = {0x40};
  const std::vector<png_byte> two_bits = {0x30};
  const std::vector<png_byte> four_bits = {0x0F, 0x00};
  const std::vector<png_byte> deep = {0, 0, 0xFF, 0xFF, 0, 0};
  const std::vector<png_byte> with_alpha = {0, 255, 255, 255, 0, 255};
  for (const int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
    for (const auto& [depth, type, row] :
         {std::tuple(1, PNG_COLOR_TYPE_GRAY, one_bit), std::tuple(2, PNG_COLOR_TYPE_GRAY, two_bits),
          std::tuple(4, PNG_COLOR_TYPE_GRAY, four_bits), std::tuple(16, PNG_COLOR_TYPE_GRAY, deep),
          std::tuple(8, PNG_COLOR_TYPE_GRAY_ALPHA, with_alpha)}) {
      std::vector<png_byte> dark = row;  // an opaque row of black
      for (std::size_t i = 0; i < dark.size(); ++i) {
        if (type != PNG_COLOR_TYPE_GRAY_ALPHA || i % 2 == 0) dark[i] = 0;
      }
      write_bytes("p.png", plain_png(depth, type, interlace, {row, dark, dark}, 3));
      EXPECT_EQ(run("import p.png -o p.shp --palette GAME.PAL").errors, "");
      EXPECT_EQ(icons_of("p.shp"), texts{"2 2 0 0 0 2 2 1,2,1,1,1,1,1,1,1,"}) << depth << interlace;
    }
  }
}

TEST_F(pictures_test, ChangesAndCountsInexactColours) {
  write_bytes("GAME.PAL", palette());
  // Hardly set, colour 4 itself, a step beside it, and half transparent.
  write_bytes("p.png",
              png_with(PNG_FORMAT_RGBA,
                       {9, 9, 9, 100, 0x40, 2, 4, 255, 0x41, 2, 4, 255, 0x40, 2, 4, 200}, 4, 1));
  write_bytes("q.png", png_with(PNG_FORMAT_RGB, {0x41, 2, 4}, 1, 1));
  const result seen = run("import p.png q.png -o p.shp --palette GAME.PAL");
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(
      seen.errors,
      "ostrane-dat: p.shp: 4 pixels of 2 pictures changed to the nearest colour or transparency\n"
      "ostrane-dat: p.shp: 1 pixel got the lowest of several indices with their colour\n");
  EXPECT_EQ(icons_of("p.shp"), (texts{"0 3 0 1 0 3 0 -1,4,4,4,", "0 0 0 0 0 0 0 4,"}));
  EXPECT_EQ(nearest_index({1, 2, 2, 9}, 2), 1);
  EXPECT_EQ(nearest_index({2, 2, 2, 9}, 2, 0), 1);
}

// The second frame covers the lower of two rows.
TEST_F(pictures_test, ReadsGifFramesThatCoverAPart) {
  write_bytes("GAME.PAL", palette());
  const auto frame = [](char top, char rows, const char* codes) {
    return std::string(",\0\0", 3) + top + std::string("\0\1\0", 3) + rows +
           std::string("\0\0\2\2", 4) + codes + '\0';
  };
  write_bytes("p.gif", std::string("GIF89a\1\0\2\0\x81\0\0@\0\0@\1\3\0\0\0\0\0\0", 25) +
                           frame(0, 2, "\x04\x0A") + frame(1, 1, "\x4C\x01") + ";");
  EXPECT_EQ(run("import p.gif -o p.shp --palette GAME.PAL").errors, "");
  EXPECT_EQ(icons_of("p.shp"), (texts{"1 0 0 0 0 0 1 0,0,", "1 0 0 0 0 0 1 0,3,"}));
}

// Pixels of the third colour of each three, which has the colour of the one before.
TEST_F(pictures_test, KeepsTheOldIndexOfAColourThatSeveralHave) {
  picture drawn(3, 1);
  for (int i = 0; i < 3; ++i) drawn.set(i, 0, static_cast<std::uint8_t>(5 - 3 * (i % 2)));
  const std::string file = shp_file({drawn});
  write_archive(file);
  write_bytes("old.shp", file);
  run("export a.dat F.SHP -d png");
  // The last pixel is painted over.
  const std::string saved = png_with(PNG_FORMAT_RGB, {64, 2, 4, 64, 0, 1, 64, 3, 7}, 3, 1);
  write_bytes("png/F-0001.png", saved);
  for (const std::string job :
       {"png --palette a.dat", "png/F-0001.png --palette a.dat --like old.shp"}) {
    EXPECT_EQ(run("import -o new.shp " + job).errors, "");
    EXPECT_EQ(icons_of("new.shp"), texts{"0 2 0 0 0 2 0 5,2,7,"}) << job;
  }
}

// The file of the colours, the pixel that has one of them, and the error.
TEST_F(pictures_test, TellsPalettesFromArchivesByTheirContent) {
  std::string black = palette();
  black.replace(0, 4, std::string(4, '\0'));
  const std::string no_palette = archive_bytes({{"A.TXT", std::string(1024 - 4 - 2 * 17, 'x')}});
  const std::tuple<std::string, std::vector<png_byte>, std::string> cases[] = {
      {black, {64, 3, 7}, ""},
      {black + "more", {64, 3, 7}, ""},
      {no_palette, {0xF0, 0xF0, 0xF0}, ""},
      {archive_bytes({{"GAME.PAL", black}}) + "rest", {64, 3, 7}, ""},
      {std::string(4, '\0'),
       {1, 2, 3},
       "ostrane-dat: c: is neither an archive nor a palette, which has 1024 bytes.\n"}};
  for (const auto& [bytes, pixel, error] : cases) {
    write_bytes("c", bytes);
    write_bytes("p.png", png_with(PNG_FORMAT_RGB, pixel, 1, 1));
    const result seen = run("import -q p.png -o p.shp --palette c");
    EXPECT_EQ(seen.errors, error) << bytes.size();
    EXPECT_EQ(seen.status, error.empty() ? 0 : 2) << bytes.size();
  }
}

// The files of a folder, the job, its message and the number of icons it makes.
TEST_F(pictures_test, ReadsTheFilesOfFoldersAndSheets) {
  write_archive(shp_file(std::vector<picture>(2, picture(2, 1))));
  run("export a.dat F.SHP -d png");
  run("export a.dat F.SHP --as sheet -d sheet");
  const std::string pixels =
      png_with(PNG_FORMAT_RGBA, {64, 0, 0, 255, 64, 0, 1, 255, 64, 1, 3, 255}, 3, 1);
  for (const char* name :
       {"png/F-0003.png", "names/a1.png", "names/a10.png", "strip-sheet.png", "s.png"}) {
    write_bytes(name, pixels);
  }
  write_bytes("names/a2.png", png_with(PNG_FORMAT_RGBA, {64, 0, 0, 255}, 1, 1));
  // As other programs write it: an object, without heads, trimmed.
  const std::string rest = R"("frame":{"x":1,"y":0,"w":1,"h":1},"rotated":)";
  const auto sheet = [&rest](const char* rotated, const char* image = "/home/s.png") {
    return R"({"meta":{"image":")" + std::string(image) + R"("},"frames":{"b 10":{)" + rest +
           rotated +
           R"(,"trimmed":true,"spriteSourceSize":{"x":2,"y":1,"w":1,"h":1},)"
           R"("sourceSize":{"w":3,"h":2}},"b 9":{"key":1,)" +
           rest + "false}}}";
  };
  write_bytes("other.json", sheet("false"));
  write_bytes("rotated.json", sheet("true"));
  write_bytes("windows.json", sheet("false", R"(C:\\home\\s.png)"));
  write_bytes("bad.json", "{\"frames\":\n  x}");
  write_bytes("list.json", "[]");
  write_bytes("photo.png", "\xFF\xD8\xFF\xE0");
  const std::string error = "ostrane-dat: ";
  const std::tuple<std::string, std::string, texts> cases[] = {
      {"png", error + "png/F-0003.png: not imported: F.json does not list it\n", {"2 1", "2 1"}},
      {"names", "", {"3 1", "1 1", "3 1"}},
      {"other.json", "", {"1 1", "3 2"}},
      {"windows.json", "", {"1 1", "3 2"}},
      {"s.png --grid 3x1", "", {"1 1", "1 1", "1 1"}},
      {"s.png --grid 2x1",
       error + "s.png: cannot be cut: its 3 by 1 pixels are no multiples of the grid.\n",
       {}},
      {"strip-sheet.png",
       error + "strip-sheet.png: is a sheet without its JSON: give --grid COLSxROWS.\n",
       {}},
      {"rotated.json",
       error +
           "rotated.json: cannot be read as the JSON of an export: its frame b 10 is rotated.\n",
       {}},
      {"bad.json",
       error +
           "bad.json: cannot be read as the JSON of an export: parse error at line 2, column 3: "
           "syntax error while parsing value - invalid literal; last read: '\"frames\":<U+000A>  "
           "x'.\n",
       {}},
      {"list.json",
       error + "list.json: cannot be read as the JSON of an export: it is not the JSON of an icon "
               "file.\n",
       {}},
      {"photo.png", error + "photo.png: is a JPEG, not a PNG.\n", {}}};
  for (const auto& [job, printed, sizes] : cases) {
    fs::remove("new.shp");
    EXPECT_EQ(run("import -o new.shp --palette a.dat -q " + job).errors, printed) << job;
    texts seen;
    if (!sizes.empty()) seen = icons_of("new.shp");
    ASSERT_EQ(seen.size(), sizes.size()) << job;
    for (std::size_t i = 0; i < seen.size(); ++i) {
      std::istringstream head(seen[i]);
      int row_count = 0;
      int column_count = 0;
      head >> row_count >> column_count;
      EXPECT_EQ(std::to_string(column_count + 1) + " " + std::to_string(row_count + 1), sizes[i])
          << job;
    }
  }
}

// The outputs of one export, and those that its inputs would become.
TEST_F(pictures_test, NeverWritesOneFileTwiceOrAnInput) {
  write_bytes("F-0001.png", archive_bytes({{"A.SHP", shp_file({picture(1, 1)})},
                                           {"A-0001.PAL", palette()},
                                           {"F.SHP", shp_file({picture(1, 1)})}}));
  const auto before = files_at(".");
  const std::string error = "ostrane-dat: ";
  const std::pair<const char*, std::string> cases[] = {
      {"A*",
       error + "A-0001.png: cannot be written: it would be a file of both A.SHP and A-0001.PAL.\n"},
      {"F.SHP", error + "./F-0001.png: cannot be written: it is read by this command.\n"}};
  for (const auto& [names, printed] : cases) {
    const result seen = run(std::string("export F-0001.png ") + names);
    EXPECT_EQ(seen.errors, printed);
    EXPECT_EQ(seen.status, 2);
    EXPECT_EQ(files_at("."), before);
  }
  EXPECT_EQ(run("export -n F-0001.png A.SHP").errors,
            error + "./A-0001.png: would be written\n" + error + "./A.json: would be written\n");
  EXPECT_EQ(files_at("."), before);
  EXPECT_EQ(run("export -v F-0001.png A.SHP -d in").errors,
            error + "in/A-0001.png: is written\n" + error + "in/A.json: is written\n");
  EXPECT_EQ(run("import -v in -o a.shp --palette F-0001.png").errors,
            error + "a.shp: is written\n");
  run("import -n in -o new.shp --palette F-0001.png");
  EXPECT_FALSE(fs::exists("new.shp"));
  EXPECT_EQ(run("import in -o in/A.json --palette F-0001.png").status, 2);
}

TEST_F(pictures_test, DiffersByTheIconsOfAnEntry) {
  std::vector<picture> icons(4, picture(2, 1));
  write_archive(shp_file(icons));
  fs::rename("a.dat", "old.dat");
  icons[1].set(0, 0, 1);
  icons.resize(3, picture(1, 1));
  write_archive(shp_file(icons));
  const result seen = run("diff old.dat a.dat");
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(seen.output, "F.SHP differs: 140 bytes, 109 bytes; icons 2, 4\n");
  EXPECT_NE(run("diff --json a.dat old.dat").output.find("\"icons\":[2, 4]"), std::string::npos);
}

// The second one is shorter than the first.
TEST_F(pictures_test, PacksSeveralIconFiles) {
  write_bytes("a.dat",
              archive_bytes({{"A.SHP", shp_file(std::vector<picture>(4, picture(2, 1)))},
                             {"B.SHP", shp_file(std::vector<picture>(2, picture(1, 1)))}}));
  const result seen = run("pack -v a.dat");
  EXPECT_EQ(seen.errors, "ostrane-dat: a.dat: is written\n");
  EXPECT_EQ(seen.output, "A.SHP: 75 bytes saved\nB.SHP: 25 bytes saved\n100 bytes saved\n");
}

// A stream of single pixels far longer than its picture needs.
TEST_F(pictures_test, ReportsThatAStreamIsCut) {
  std::string stream;
  for (int i = 0; i < 70000; ++i) stream += "\x02\x01";
  const shp_icon icon = {{.no_of_rows = 0, .no_of_cols = 0}, stream + std::string(1, '\0')};
  write_archive(shp_file(std::vector<shp_icon>{icon}));
  EXPECT_EQ(
      run("export a.dat F.SHP").errors,
      "ostrane-dat: F.SHP: icon 1 is cut: only the first 65552 bytes of its stream are read\n");
  EXPECT_TRUE(run("check a.dat")
                  .output.starts_with(
                      "a.dat: F.SHP: icon 1: only the first 65552 bytes of its stream are read\n"));
  const result packed = run("pack a.dat F.SHP");
  EXPECT_EQ(packed.errors,
            "ostrane-dat: F.SHP: not packed: its icon 1 is longer than what is read of it.\n");
  EXPECT_EQ(packed.status, 1);
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
  const result seen = run("import p.png -o two.shp --palette GAME.PAL --like two.shp");
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
  run("import GAME.png -o p.shp --palette a.dat");
  EXPECT_EQ(icons_of("p.shp").at(0).substr(0, 28), "15 15 0 0 0 15 15 0,1,2,3,4,");
  EXPECT_NE(bytes_of("F-sheet.json").find("\"w\":12,\"h\":4"), std::string::npos);
  EXPECT_NE(bytes_of("F-sheet.json").find("{\"x\":0,\"y\":2,"), std::string::npos);
  // Indices keep their colours, also equal ones.
  EXPECT_NE(bytes_of("F-0001.png").find(std::string("PLTE\x40\0\0\x40\0\1\x40\0\1", 13)),
            std::string::npos);
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
