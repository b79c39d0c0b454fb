// The input is a PNG, the JSON of an export, or a picture. A picture must be unchanged after a
// round trip through a PNG and through an icon.
#include <memory>

#include "data/data_error.h"
#include "data/icon_file.h"
#include "generated_input.h"
#include "pictures/icon_json.h"
#include "pictures/new_icon.h"
#include "pictures/png_reader.h"
#include "pictures/png_writer.h"

using namespace ostrane;

namespace {

constexpr std::int64_t max_cells = 1 << 20;  // larger pictures only cost time

void check_icon(const picture& drawn, const std::optional<known_icon>& known) {
  static const fs::path path = fuzz::top_folder() / "made.shp";
  const std::string bytes = shp_file({new_icon(drawn, known)});
  write_bytes(path, bytes);
  files::binary_file file;
  file.open_to_read({path, u8"made.shp"});
  const icon_file icons = read_icon_file(file, 0, static_cast<std::int32_t>(bytes.size()));
  icon_head head;
  fuzz::check(read_icon_head(file, icons.positions.at(0), head), "an icon is made");
  fuzz::check(classify_icon(head) == icon_kind::drawable, "it can be drawn");
  static const auto stream = std::make_unique<icon_stream>();
  const picture seen = read_icon_picture(*stream, file, icons, head, icons.positions[0]);
  fuzz::check(seen == drawn, "its cells are those of the picture");
}

rgb_palette colours(std::uint32_t step) {
  rgb_palette made = {};
  for (std::uint32_t i = 0; i < made.size(); ++i) made[i] = i * step & 0xFFFFFFU;
  return made;
}

void import_png(const std::string& bytes) {
  static colour_finder finder(colours(0x010101));
  const png_picture read = read_png(bytes, u8"p", finder);
  if (std::int64_t{read.drawn.columns()} * read.drawn.rows() <= max_cells)
    check_icon(read.drawn, {});
}

void import_json(const std::string& text) {
  for (const auto& icon : read_icon_json(text, u8"j").icons) {
    if (!has_picture(icon.head) || columns_of(icon.head) * rows_of(icon.head) > max_cells) continue;
    picture drawn(static_cast<int>(columns_of(icon.head)), static_cast<int>(rows_of(icon.head)));
    drawn.set(drawn.columns() - 1, drawn.rows() / 2, 3);
    check_icon(drawn, known_icon{icon.head, icon.last_column});
  }
}

void import_generated(fuzz::fields& from) {
  picture drawn(from.ConsumeIntegralInRange(1, 300), from.ConsumeIntegralInRange(1, 20));
  const rgb_palette palette = colours(from.ConsumeIntegral<std::uint32_t>());
  const bool is_full = from.ConsumeBool();
  for (int i = 0; is_full && i < std::min(256, drawn.columns() * drawn.rows()); ++i) {
    drawn.set(i % drawn.columns(), i / drawn.columns(), static_cast<std::uint8_t>(i));
  }
  while (from.remaining_bytes() > 0) {
    drawn.set(from.ConsumeIntegralInRange(0, drawn.columns() - 1),
              from.ConsumeIntegralInRange(0, drawn.rows() - 1),
              from.ConsumeIntegral<std::uint8_t>());
  }
  colour_finder finder(palette);
  const png_picture read =
      read_png(png_of(drawn, palette, distinct_colours(palette)), u8"p", finder);
  fuzz::check(read.inexact == 0 && read.drawn == drawn, "a PNG loses nothing");
  icon_head head = head_of(drawn);
  head.col_start -= fuzz::number(from, {300}) & 0x3FF;
  check_icon(drawn, known_icon{head, 0});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  try {
    if (data[0] == 1) {
      fuzz::fields from(data + 1, size - 1);
      import_generated(from);
    } else if (data[0] == '{') {
      import_json({reinterpret_cast<const char*>(data), size});
    } else {
      import_png({reinterpret_cast<const char*>(data), size});
    }
  } catch (const data_error& error) {
    fuzz::check(!error.told.reason.empty(), "an error has a text");
  }
  return 0;
}
