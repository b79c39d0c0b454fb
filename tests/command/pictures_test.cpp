#include <png.h>

#include <cstdlib>
#include <memory>

#include "data/icon_file.h"
#include "random_icons.h"
#include "transcript.h"

using namespace ostrane;

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

  // The width and the pixels as RRGGBB or RRGGBBAA.
  static void make_png(const texts& words) {
    std::vector<png_byte> rows;
    for (std::size_t i = 2; i < words.size(); ++i) {
      const std::string pixel = words[i] + "FF";
      for (std::size_t at = 0; at < 8; at += 2) {
        rows.push_back(static_cast<png_byte>(std::stoul(pixel.substr(at, 2), nullptr, 16)));
      }
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(std::stoul(words[1]));
    image.height = static_cast<png_uint_32>(rows.size()) / 4 / image.width;
    image.format = PNG_FORMAT_RGBA;
    EXPECT_NE(png_image_write_to_file(&image, words[0].c_str(), 0, rows.data(), 0, nullptr), 0);
  }
  // The size, and the pixels, or their checksum if there are many.
  static std::string pixels_of(const std::string& path) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    png_image_begin_read_from_file(&image, path.c_str());
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
    random.makes_full_icons = left % 2 == 0;
    while (icons.size() < (wanted == nullptr ? 40 : 6)) icons.push_back(random.next());
    const std::string file = shp_file(icons, {'\x80', '\0', 'x', '"'});
    // The icon file comes last: a stream that ends early reads on after its entry.
    write_bytes("a.dat", archive_bytes({{"GAME.PAL", palette()}, {"F.SHP", file}}));
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
      if (form == "gif" && random.makes_full_icons) continue;
      SCOPED_TRACE(job);
      fs::remove_all(form);
      run("export a.dat F.SHP --as " + form + " -d " + form);
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
