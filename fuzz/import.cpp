// The input is a PNG, a GIF, the JSON of an export or of a sheet, or a picture. A picture must be
// unchanged after a round trip through a PNG, through a GIF and through an icon.
#include <memory>

#include "data/data_error.h"
#include "data/icon_file.h"
#include "data/new_icon.h"
#include "generated_input.h"
#include "pictures/gif_reader.h"
#include "pictures/gif_writer.h"
#include "pictures/png_reader.h"
#include "pictures/png_writer.h"
#include "pictures/sheet_json_reader.h"

using namespace ostrane;

constexpr std::int64_t max_cells = 1 << 20;  // larger pictures only cost time

static void check_icon(const picture& drawn, const std::optional<known_icon>& known) {
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

static rgb_palette colours(std::uint32_t step) {
  rgb_palette made = {};
  for (std::uint32_t i = 0; i < made.size(); ++i) made[i] = i * step & 0xFFFFFFU;
  return made;
}

static colour_finder& finder() {
  static colour_finder made(colours(0x010101));
  return made;
}

static void check_marked(picture marked) {
  if (std::int64_t{marked.columns()} * marked.rows() > max_cells) return;
  check_icon(settled(std::move(marked), finder().palette(), nullptr).drawn, {});
}

// The screen of a GIF may be far larger than its frames.
static void import_gif(const std::string& bytes) {
  const auto side = [all = std::as_bytes(std::span(bytes))](std::size_t at) {
    return at + 1 < all.size() ? files::int16_at(all, at) & 0xFFFF : 0;
  };
  if (std::int64_t{side(6)} * side(8) > max_cells) return;
  for (picture& shown : read_gif(bytes, u8"g", finder())) check_marked(std::move(shown));
}

static void import_json(const std::string& text) {
  const auto read = read_export_json(text, u8"j");
  const auto* icons = std::get_if<exported_icons>(&read);
  exported_icons exported = icons == nullptr ? exported_icons() : *icons;
  const picture sheet(64, 64);
  if (const auto* layout = std::get_if<sheet_layout>(&read)) {
    for (const sheet_frame& frame : layout->frames) {
      if (std::int64_t{frame.columns} * frame.rows <= max_cells) picture_of(sheet, frame);
    }
    if (layout->exported) exported = *layout->exported;
  }
  for (const auto& icon : exported.icons) {
    if (!has_picture(icon.head) || columns_of(icon.head) * rows_of(icon.head) > max_cells) continue;
    picture drawn(static_cast<int>(columns_of(icon.head)), static_cast<int>(rows_of(icon.head)));
    drawn.set(drawn.columns() - 1, drawn.rows() / 2, 3);
    check_icon(drawn, known_icon{icon.head, icon.last_column});
  }
}

static void import_generated(fuzz::fields& from) {
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
  colour_finder made(palette);
  const auto check_same = [&](picture marked) {
    const settled_picture read = settled(std::move(marked), palette, nullptr);
    fuzz::check(read.changed == 0 && read.drawn == drawn, "a round loses nothing");
  };
  check_same(read_png(png_of(drawn, palette, distinct_colours(palette)), u8"p", made));
  std::int64_t inexact = 0;
  const std::string gif = gif_of({drawn}, palette, 1, 1, inexact);
  if (inexact == 0) check_same(read_gif(gif, u8"g", made).at(0));
  icon_head head = head_of(drawn);
  head.col_start -= fuzz::number(from, {300}) & 0x3FF;
  check_icon(drawn, known_icon{head, 0});
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  try {
    if (data[0] == 1) {
      fuzz::fields from(data + 1, size - 1);
      import_generated(from);
    } else if (data[0] == '{') {
      import_json({reinterpret_cast<const char*>(data), size});
    } else if (data[0] == 'G') {
      import_gif({reinterpret_cast<const char*>(data), size});
    } else {
      check_marked(read_png({reinterpret_cast<const char*>(data), size}, u8"p", finder()));
    }
  } catch (const data_error& error) {
    fuzz::check(!error.told.reason.empty(), "an error has a text");
  }
  return 0;
}
