#include <png.h>

#include <cstdlib>
#include <memory>

#include "data/colour_finder.h"
#include "data/icon_file.h"
#include "random_icons.h"
#include "transcript.h"

namespace ostrane {

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

struct pictures_test : transcript_test {
  pictures_test() {
    verbs["palette"] = quiet([](const auto& words) { write_bytes(words[0], palette()); });
    verbs["png"] = quiet(make_png);
    verbs["pixels"] = [](const auto& words) { return pixels_of(words[0]); };
    verbs["frames"] = [](const auto& words) { return frames_of(words[0]); };
    verbs["icons"] = [](const auto& words) {
      std::string lines;
      for (const std::string& icon : icons_of(words[0])) lines += icon + "\n";
      return lines;
    };
  }

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

  // The width and the pixels as RRGGBB or RRGGBBAA.
  static void make_png(const texts& words) {
    std::vector<png_byte> rows;
    for (std::size_t i = 2; i < words.size(); ++i) {
      const std::string pixel = words[i] + "FF";
      for (std::size_t at = 0; at < 8; at += 2) {
        rows.push_back(static_cast<png_byte>(std::stoul(pixel.substr(at, 2), nullptr, 16)));
      }
    }
    const auto width = static_cast<png_uint_32>(std::stoul(words[1]));
    const auto height = static_cast<png_uint_32>(rows.size()) / 4 / width;
    write_bytes(words[0], png_with(PNG_FORMAT_RGBA, rows, width, height));
  }
  // The size, and the pixels, or their checksum if there are many.
  static std::string pixels_of(const std::string& path) {
    const std::string bytes = bytes_of(path);
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    png_image_begin_read_from_memory(&image, bytes.data(), bytes.size());
    const bool is_indexed = (image.format & PNG_FORMAT_FLAG_COLORMAP) != 0;
    image.format = PNG_FORMAT_RGBA;
    std::string pixels(PNG_IMAGE_SIZE(image), '\0');
    png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr);
    const std::string text = (is_indexed ? "indices, " : "colours, ") +
                             std::to_string(image.width) + "x" + std::to_string(image.height);
    if (pixels.size() > 64) return text + ", " + checksum_of(pixels) + "\n";
    return text + ": " + hex_bytes(pixels) + "\n";
  }
  // The sizes and flags of a GIF, and the bytes of its extensions and frames, without the pixels.
  static std::string frames_of(const std::string& path) {
    const std::string gif = bytes_of(path);
    const auto number_at = [&gif](std::size_t at) {
      return static_cast<unsigned char>(gif.at(at));
    };
    std::string text = hex_bytes(gif.substr(6, 7)) + "\n";
    for (std::size_t at = 13 + 3 * 256; gif.at(at) != ';'; ++at) {
      const bool is_frame = gif[at] == ',';
      text += hex_bytes(gif.substr(at, is_frame ? 10 : 3 + number_at(at + 2))) + "\n";
      at += is_frame ? 11 : 2;
      while (number_at(at) != 0) at += 1 + std::size_t{number_at(at)};
    }
    return text;
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

TEST_F(pictures_test, PrintsItsTranscript) { replay("pictures.txt"); }

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

TEST_F(pictures_test, RefusesASourceThatIsNestedTooDeeply) {
  write_bytes("GAME.PAL", palette());
  write_bytes("deep.json", std::string(100000, '['));
  EXPECT_EQ(run("import deep.json -o new.shp --palette GAME.PAL").status, 2);
}

TEST(colour_finder_test, OneOfSeveralIndicesIsTheNearest) {
  EXPECT_EQ(nearest_index({1, 2, 2, 9}, 2), 1);
  EXPECT_EQ(nearest_index({2, 2, 2, 9}, 2, 0), 1);
}

// Icons of a few bytes can have pictures of any size.
TEST_F(pictures_test, RefusesPicturesThatAreTooLargeTogether) {
  const shp_icon large = {{.no_of_rows = 8191, .no_of_cols = 8191}, std::string(1, '\0')};
  const std::string file = shared_shp_file(std::vector<shp_icon>(9, large), default_identifier);
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
