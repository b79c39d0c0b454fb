#include "pictures/icon_exporter.h"

#include <algorithm>
#include <memory>

#include "data/colour_finder.h"
#include "data/data_error.h"
#include "data/icon_file.h"
#include "data/icon_packer.h"
#include "data/number_text.h"
#include "data/shared_work.h"
#include "files/code_page.h"
#include "pictures/gif_writer.h"
#include "pictures/icon_json.h"
#include "pictures/png_writer.h"
#include "pictures/sheet_json_writer.h"

namespace ostrane {

namespace {

constexpr std::int64_t max_scaled_pixels = std::int64_t{1} << 28U;

struct icon_export_job {
  export_output& output;
  const icon_export& wanted;
  rgb_palette distinct;  // the distinct_colours of the palette
  std::unique_ptr<icon_stream> stream = std::make_unique<icon_stream>();
};

std::int64_t cells_of(const picture& drawn) { return std::int64_t{drawn.columns()} * drawn.rows(); }

// No file may be the archive or one that must not be replaced. Checked before any is written.
void require_writable_files(const icon_export_job& job) {
  const icon_export& wanted = job.wanted;
  const icon_file from = read_icon_file(job.output.archive, wanted.start, wanted.end);
  const std::size_t last = std::min(wanted.last, from.positions.size());
  for (const std::u8string& name : exported_files(wanted.form, wanted.stem, wanted.first, last)) {
    require_writable(job.output.target(name), rules_of(job.output));
  }
}

void require_scalable(const icon_export_job& job, std::int64_t cells) {
  if (cells * job.wanted.scale * job.wanted.scale <= max_scaled_pixels) return;
  throw data_error("At this scale the pictures would be too large.");
}

std::string png_at_scale(const icon_export_job& job, const picture& drawn) {
  require_scalable(job, cells_of(drawn));
  return png_of(drawn, job.wanted.colours, job.distinct, job.wanted.scale);
}

// Called for each drawable icon.
using drawable_handler =
    std::function<void(std::size_t number, picture drawn, exported_icon& icon)>;

// What an export loses of an icon, or "".
std::string fault_of(const stored_icon& icon) {
  if (!icon.is_there) return "was skipped: its offset is outside the entry";
  const icon_kind kind = classify_icon(icon.head);
  if (kind == icon_kind::refused) return "was skipped: its box ends outside its picture";
  if (kind == icon_kind::drawable && !icon.drawn) {
    return "was skipped: its size is below 1 or too large";
  }
  if (!icon.is_cut) return "";
  return "is cut: only the first " + std::to_string(max_stream_bytes(icon.head)) +
         " bytes of its stream are read";
}

// The directory may have room for fewer icons than the head says, or the head may exceed the limit.
void report_unread_icons(const icon_export& wanted, const icon_file& from) {
  const auto read = static_cast<std::int32_t>(from.positions.size());
  const bool wants_all = wanted.last > from.positions.size() ||
                         wanted.last == static_cast<std::size_t>(max_icons_per_file);
  if (!wants_all || from.head.icon_count <= read) return;
  wanted.on_fault("its head gives " + std::to_string(from.head.icon_count) +
                  " as the number of its icons; only " + std::to_string(read) + " can be read");
}

exported_icons read_icons(icon_export_job& job, const drawable_handler& on_drawable) {
  const icon_export& wanted = job.wanted;
  const icon_file from = read_icon_file(job.output.archive, wanted.start, wanted.end);
  exported_icons exported = {.name = files::to_utf8(wanted.entry),
                             .identifier = from.head.identifier,
                             .scale = wanted.scale,
                             .icons = {}};
  const std::size_t last = std::min(wanted.last, from.positions.size());
  for (std::size_t number = wanted.first; number <= last; ++number) {
    if (wanted.on_icon) wanted.on_icon(number, last);
    stored_icon stored = read_stored_icon(*job.stream, job.output.archive, from, number - 1);
    const std::string fault = fault_of(stored);
    if (!fault.empty()) wanted.on_fault("icon " + std::to_string(number) + " " + fault);
    exported.icons.push_back({.file = {},
                              .head = stored.head,
                              .offset = from.positions[number - 1] - 1 - from.start,
                              .number = static_cast<std::int32_t>(number)});
    if (stored.drawn) on_drawable(number, std::move(*stored.drawn), exported.icons.back());
  }
  report_unread_icons(wanted, from);
  return exported;
}

struct made_picture {
  std::u8string name;
  picture drawn;
  std::string png = {};
};

// Compression takes most of the time. Only this thread reads and writes files.
void write_pictures(icon_export_job& job, std::vector<made_picture>& pictures) {
  share_work(pictures.size(), [&](shared_indices& indices) {
    for (std::size_t i = 0; indices.take(i);) {
      pictures[i].png = png_at_scale(job, pictures[i].drawn);
    }
  });
  for (const made_picture& made : pictures) write_export(job.output, made.name, made.png);
}

void export_series(icon_export_job& job) {
  constexpr std::int64_t max_cells = std::int64_t{1} << 20U;  // in memory
  std::vector<made_picture> pictures;
  std::int64_t cells = 0;
  const exported_icons exported =
      read_icons(job, [&](std::size_t number, picture drawn, exported_icon& icon) {
        icon.file = png_name(job.wanted.stem, number);
        icon.last_column = last_set_column(drawn);
        cells += cells_of(drawn);
        pictures.push_back({*icon.file, std::move(drawn)});
        if (cells < max_cells) return;
        write_pictures(job, pictures);
        pictures.clear();
        cells = 0;
      });
  write_pictures(job, pictures);
  write_export(job.output, job.wanted.stem + u8".json", json_of(exported));
}

// Blank icons are omitted from a GIF and a sheet.
struct all_pictures {
  std::vector<picture> pictures;
  std::vector<std::u8string> names;
  exported_icons exported;  // the file of an icon is the name of its frame
  std::int64_t cells = 0;
};

all_pictures collect_pictures(icon_export_job& job) {
  all_pictures all;
  all.exported = read_icons(job, [&](std::size_t number, picture drawn, exported_icon& icon) {
    all.cells += cells_of(drawn);
    if (all.cells > max_picture_cells) throw data_error("Its pictures together are too large.");
    icon.file = png_name(files::to_utf8(stem_of_entry(job.wanted.entry)), number);
    icon.last_column = last_set_column(drawn);
    all.names.push_back(*icon.file);
    all.pictures.push_back(std::move(drawn));
  });
  if (all.pictures.empty()) throw data_error("It has no drawable icon.");
  return all;
}

void export_sheet(icon_export_job& job) {
  const all_pictures all = collect_pictures(job);
  const sheet made = sheet_of(all.pictures);
  const std::u8string name = job.wanted.stem + u8".png";
  write_export(job.output, name, png_at_scale(job, made.drawn));
  // The user may have given the file a name in another case.
  const std::u8string image = job.output.target(name).system.filename().u8string();
  write_export(job.output, job.wanted.stem + u8".json",
               json_of(made, all.pictures, all.names, image, job.wanted.pace, job.wanted.scale,
                       json_of(all.exported)));
}

void export_gif(icon_export_job& job) {
  const all_pictures all = collect_pictures(job);
  require_scalable(job, all.cells);
  std::int64_t inexact = 0;
  write_export(
      job.output, job.wanted.stem + u8".gif",
      gif_of(all.pictures, job.wanted.colours, job.wanted.pace, job.wanted.scale, inexact));
  if (inexact > 0) {
    job.wanted.on_fault(counted(inexact, "pixel") + " of the GIF changed to the nearest colour");
  }
}

void export_picture(icon_export_job& job) {
  const all_pictures all = collect_pictures(job);
  write_export(job.output, job.wanted.stem + u8".png", png_at_scale(job, all.pictures.front()));
}

void export_to_files(export_output& output, const icon_export& wanted) {
  icon_export_job job = {
      .output = output, .wanted = wanted, .distinct = distinct_colours(wanted.colours)};
  require_writable_files(job);
  switch (wanted.form) {
    case picture_form::png:
      export_series(job);
      break;
    case picture_form::sheet:
      export_sheet(job);
      break;
    case picture_form::gif:
      export_gif(job);
      break;
    case picture_form::picture:
      export_picture(job);
      break;
  }
}

}  // namespace

icon_exporter make_icon_exporter() { return export_to_files; }

}  // namespace ostrane
