#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/pictures/gif_writer.h"
#include "command/pictures/icon_json.h"
#include "command/pictures/pixel_form.h"
#include "command/pictures/png_writer.h"
#include "command/pictures/sheet.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "data/entry_kind.h"
#include "data/icon_file.h"
#include "data/palette.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/whole_file.h"

namespace ostrane::command {

namespace {

constexpr int palette_side = 16;
constexpr std::int64_t max_scaled_pixels = std::int64_t{1} << 28U;

struct export_job {
  const export_options& options;
  files::binary_file archive = {};
  files::file_identity identity = {};  // of the archive
  colour_table palette = {};
  colour_table distinct = {};  // the distinct_colours of it
  std::unique_ptr<icon_stream> stream = std::make_unique<icon_stream>();
  files::binary_file output = {};
  int status = status_done;
};

// An entry, with all texts in UTF-8.
struct exported_entry {
  std::string name;
  std::string stem;  // what its files begin with
  std::int32_t start = 0;
  std::int32_t end = 0;
};

void skip(export_job& job, const exported_entry& entry, const std::string& reason) {
  tell(entry.name, reason);
  job.status = status_differs;
}

void write_file(export_job& job, const std::string& name, std::string_view bytes) {
  const std::filesystem::path path =
      path_of_argument(job.options.folder) / std::u8string(name.begin(), name.end());
  write_whole_file(job.output, {path, argument_of_path(path) + ":"}, bytes, job.identity);
}

std::string png_at_scale(const export_job& job, const picture& drawn) {
  const std::int64_t pixels = std::int64_t{drawn.columns()} * drawn.rows();
  if (pixels * job.options.scale * job.options.scale > max_scaled_pixels) {
    throw data_error("At this scale a picture would be too large.");
  }
  return png_of(drawn, job.palette, job.distinct, job.options.scale);
}

std::int32_t last_set_column(const picture& drawn) {
  std::int32_t last = -1;
  for (int row = 0; row < drawn.rows(); ++row) {
    const auto cells = drawn.row(row);
    for (std::int32_t column = drawn.columns() - 1; column > last; --column) {
      if (cells[static_cast<std::size_t>(column)] != picture::unset) last = column;
    }
  }
  return last;
}

// Takes an icon that can be drawn.
using icon_taker = std::function<void(std::size_t number, picture drawn, exported_icon& icon)>;

// What stands for an icon whose head cannot be read: a blank one.
constexpr icon_head lost_head = {.no_of_rows = 0, .no_of_cols = 0, .col_start = 1};

exported_icon export_icon(export_job& job, const exported_entry& entry, const icon_file& from,
                          std::size_t number, const icon_taker& take) {
  const std::int32_t position = from.positions[number - 1];
  exported_icon icon = {.file = {}, .head = lost_head, .offset = position - 1 - entry.start};
  const std::string which = "icon " + std::to_string(number) + " was left out: ";
  const bool is_there = position > 0 && position <= from.end;
  if (!is_there || !read_icon_head(job.archive, position, icon.head)) {
    skip(job, entry, which + "its offset leads outside the entry");
  } else if (classify_icon(icon.head) == icon_kind::refused) {
    skip(job, entry, which + "its box ends beyond its picture");
  } else if (classify_icon(icon.head) == icon_kind::drawable && !has_picture(icon.head)) {
    skip(job, entry, which + "its size is below 1 or too large");
  } else if (classify_icon(icon.head) == icon_kind::drawable) {
    take(number, read_icon_picture(*job.stream, job.archive, from, icon.head, position), icon);
  }
  return icon;
}

exported_icons export_icons(export_job& job, const exported_entry& entry, const icon_taker& take) {
  const icon_file from = read_icon_file(job.archive, entry.start, entry.end);
  exported_icons exported = {.name = entry.name,
                             .identifier = from.head.identifier,
                             .scale = job.options.scale,
                             .icons = {}};
  for (std::size_t number = 1; number <= from.positions.size(); ++number) {
    show_progress(number, from.positions.size(), entry.name);
    exported.icons.push_back(export_icon(job, entry, from, number, take));
  }
  if (from.positions.size() != static_cast<std::size_t>(std::max(from.head.icon_count, 0))) {
    skip(job, entry, "it has not as many icons as its head gives, or more than 5000");
  }
  return exported;
}

std::string numbered(const std::string& stem, std::size_t number) {
  std::array<char, 16> digits = {};
  std::snprintf(digits.data(), digits.size(), "-%04zu.png", number);
  return stem + digits.data();
}

void export_series(export_job& job, const exported_entry& entry) {
  const exported_icons exported =
      export_icons(job, entry, [&](std::size_t number, const picture& drawn, exported_icon& icon) {
        icon.file = numbered(entry.stem, number);
        icon.last_column = last_set_column(drawn);
        write_file(job, *icon.file, png_at_scale(job, drawn));
      });
  write_file(job, entry.stem + ".json", json_of(exported));
}

// Blank icons have a place in a motion and on a sheet.
struct all_pictures {
  std::vector<picture> pictures;
  std::vector<std::string> names;
};

all_pictures collect_pictures(export_job& job, const exported_entry& entry) {
  all_pictures all;
  std::int64_t cells = 0;
  export_icons(job, entry, [&](std::size_t number, picture drawn, exported_icon&) {
    cells += std::int64_t{drawn.columns()} * drawn.rows();
    if (cells > max_picture_cells) throw data_error("Its pictures together are too large.");
    all.pictures.push_back(std::move(drawn));
    all.names.push_back(numbered(entry.stem, number));
  });
  if (all.pictures.empty()) throw data_error("It has no icon that can be drawn.");
  return all;
}

void export_sheet(export_job& job, const exported_entry& entry) {
  const all_pictures all = collect_pictures(job, entry);
  const sheet made = sheet_of(all.pictures);
  const std::string image = entry.stem + "-sheet.png";
  write_file(job, image, png_at_scale(job, made.drawn));
  write_file(job, entry.stem + "-sheet.json",
             json_of(made, all.pictures, all.names, image, job.options.pace, job.options.scale));
}

void export_motion(export_job& job, const exported_entry& entry) {
  const all_pictures all = collect_pictures(job, entry);
  std::int64_t inexact = 0;
  write_file(job, entry.stem + ".gif",
             gif_of(all.pictures, job.palette, job.options.pace, job.options.scale, inexact));
  if (inexact > 0) skip(job, entry, std::to_string(inexact) + " pixels of the GIF are not exact");
}

std::string gpl_of(const std::string& name, const colour_table& colours) {
  std::string text = "GIMP Palette\nName: " + printable(name) + "\nColumns: 16\n#\n";
  for (std::size_t i = 0; i < colours.size(); ++i) {
    std::array<char, 48> line = {};
    std::snprintf(line.data(), line.size(), "%3u %3u %3u\tIndex %zu\n", colours[i] >> 16U,
                  colours[i] >> 8U & 0xFFU, colours[i] & 0xFFU, i);
    text += line.data();
  }
  return text;
}

void export_palette(export_job& job, const exported_entry& entry) {
  const std::int64_t there = std::min<std::int64_t>(entry.end, job.archive.size()) - entry.start;
  if (entry.start < 0 || there < std::int64_t{palette_colours * colour_size}) {
    skip(job, entry, "it is too short for a palette");
    return;
  }
  const colour_table colours = read_colours(job.archive, entry.start);
  picture drawn(palette_side, palette_side);
  for (int i = 0; i < palette_side * palette_side; ++i) {
    drawn.set(i % palette_side, i / palette_side, static_cast<std::uint8_t>(i));
  }
  write_file(job, entry.stem + ".png", png_of(drawn, colours, colours, job.options.scale));
  write_file(job, entry.stem + ".gpl", gpl_of(entry.name, colours));
}

void export_text(export_job& job, const exported_entry& entry) {
  const std::int64_t size = std::int64_t{entry.end} - entry.start;
  if (entry.start < 0 || size < 0 || entry.end > job.archive.size()) {
    skip(job, entry, "the archive does not hold it whole");
    return;
  }
  std::string text(static_cast<std::size_t>(size), ' ');
  job.archive.seek(entry.start);
  job.archive.read(std::as_writable_bytes(std::span(text)));
  std::replace(text.begin(), text.end(), '\0', ' ');
  write_file(job, entry.stem + ".txt", files::to_utf8(text));
}

void export_one(export_job& job, const exported_entry& entry, entry_kind kind) {
  if (kind == entry_kind::palette) {
    export_palette(job, entry);
  } else if (kind == entry_kind::text) {
    export_text(job, entry);
  } else if (kind == entry_kind::other) {
    skip(job, entry, "left out: it is no icon file, palette or text");
  } else if (job.options.form == picture_form::png) {
    export_series(job, entry);
  } else if (job.options.form == picture_form::sheet) {
    export_sheet(job, entry);
  } else {
    export_motion(job, entry);
  }
}

void export_entry(export_job& job, const archive_index& index, std::size_t i) {
  constexpr std::size_t ending = 4;  // ".SHP"
  const std::string name = name_with_blanks(index.records[i].name);
  exported_entry entry = {
      .name = files::to_utf8(name),
      .stem = files::to_utf8(name.substr(0, std::max(name.size(), ending) - ending)),
      .start = index.records[i].offset,
      .end = index.records[i + 1].offset};
  if (entry.stem.empty()) entry.stem = entry.name;
  const std::string unsafe = unsafe_name_reason(name);
  if (!unsafe.empty()) {
    skip(job, entry, "left out: " + unsafe);
    return;
  }
  try {
    export_one(job, entry, kind_of_entry(name_without_nuls(index.records[i].name)));
  } catch (const data_error& error) {
    skip(job, entry, error.text);
  }
}

}  // namespace

int export_entries(const export_options& options) {
  const files::file_path archive = named_file(options.archive);
  const archive_index index = read_archive_index(archive);
  const std::vector<bool> chosen = chosen_entries(index.records, options.names);
  make_folder(options.folder);
  export_job job = {.options = options};
  open_unchanged(job.archive, archive, index.stamp);
  job.identity = index.stamp.identity;
  job.palette = read_game_colours(job.archive, index.records);
  job.distinct = distinct_colours(job.palette);
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    if (chosen[i]) export_entry(job, index, i);
  }
  return job.status;
}

}  // namespace ostrane::command
