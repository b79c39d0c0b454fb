#include <algorithm>
#include <atomic>
#include <cstdio>

#include "command/commands.h"
#include "command/console.h"
#include "command/import_sources.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/game_file.h"
#include "data/number_text.h"
#include "data/old_icons.h"
#include "data/shared_work.h"
#include "data/sheet_frame.h"
#include "files/code_page.h"
#include "files/text.h"
#include "pictures/png_reader.h"

namespace ostrane::command {

namespace {

// What the threads of an import share.
struct import_job {
  const import_plan& plan;
  const std::optional<old_icons>& old;
  std::vector<shp_icon> icons;
  std::atomic<std::int64_t> changed_pixels = 0;
  std::atomic<std::int64_t> changed_pictures = 0;
  std::atomic<std::int64_t> shared_pixels = 0;
};

// What each thread has.
struct icon_maker {
  colour_finder colours;
  files::binary_file png = {};
  std::optional<old_icon_reader> old = {};
};

picture marked_picture_of(const planned_icon& planned, icon_maker& maker) {
  if (planned.png) {
    return read_png(read_bytes(maker.png, *planned.png), planned.png->shown, maker.colours);
  }
  return planned.may_be_cut && planned.known ? fitted(*planned.marked, planned.known->head)
                                             : *planned.marked;
}

shp_icon make_icon_of(import_job& job, const planned_icon& planned, icon_maker& maker) {
  if (!planned.has_picture()) return {planned.known->head, ""};
  picture marked = marked_picture_of(planned, maker);
  const stored_icon old =
      maker.old && planned.old_index ? maker.old->read(*planned.old_index) : stored_icon();
  const settled_picture read =
      settled(std::move(marked), maker.colours.palette(), old.drawn ? &*old.drawn : nullptr);
  job.changed_pixels += read.changed;
  job.shared_pixels += read.shared;
  if (read.changed > 0) ++job.changed_pictures;
  try {
    return new_icon(read.drawn, planned.known);
  } catch (const data_error& error) {
    throw data_error(planned.png ? planned.png->shown : u8"A picture",
                     "cannot become an icon: " + error.told.reason + ".");
  }
}

// Decoding a PNG and packing an icon are CPU-bound.
void make_all_icons(import_job& job, const colour_finder& colours) {
  const std::size_t count = job.icons.size();
  share_work(
      count,
      [&](shared_indices& indices) {
        icon_maker maker = {.colours = colours};
        if (job.old) maker.old.emplace(*job.old);
        for (std::size_t i = 0; indices.take(i);) {
          job.icons[i] = make_icon_of(job, job.plan.icons[i], maker);
        }
      },
      [count](std::size_t taken) { show_progress(taken, count, ""); });
}

grid_size grid_in(const std::string& text) {
  grid_size grid;
  char end = 0;
  const bool is_grid = std::sscanf(text.c_str(), "%5dx%5d%c", &grid.columns, &grid.rows, &end) == 2;
  if (!text.empty() && (!is_grid || grid.columns < 1 || grid.rows < 1 ||
                        std::int64_t{grid.columns} * grid.rows > max_icons_per_file)) {
    throw data_error(files::as_utf8(text), "is not a grid such as 8x4 of at most " +
                                               std::to_string(max_icons_per_file) + " icons.");
  }
  return grid;
}

import_plan make_plan(const import_options& options, colour_finder& colours) {
  const std::string stem = files::as_bytes(path_of_argument(options.icon_file).stem().u8string());
  return plan_of(options.sources, stem, grid_in(options.grid), colours);
}

// The options --like and -o may name the same file.
void require_separate_output(const import_options& options, const import_plan& plan) {
  require_other_file(options.icon_file, path_of_argument(options.palette));
  for (const files::file_path& input : plan.inputs) {
    require_other_file(options.icon_file, input.system);
  }
}

old_icons icons_of_file(const files::file_path& path) {
  files::binary_file file;
  file.open_to_read(path);
  if (file.size() < std::int64_t{shp_head_size}) {
    throw data_error(path.shown, "is too short for an icon file.");
  }
  const auto size = static_cast<std::int32_t>(std::min<std::int64_t>(file.size(), INT32_MAX));
  return {path, file.info().stamp, read_icon_file(file, 0, size)};
}

// None if the archive has no entry of this name.
std::optional<old_icons> icons_of_entry(game_file& game, const files::file_path& path,
                                        const std::u8string& name) {
  const auto& records = game.index.records;
  const std::string wanted = files::compare_key(files::from_utf8_lossy(name));
  for (std::size_t i = 0; !wanted.empty() && i < entries_of(records).size(); ++i) {
    if (name_key(records[i].name) != wanted) continue;
    return old_icons{path, game.index.stamp,
                     read_icon_file(game.file, records[i].offset, records[i + 1].offset)};
  }
  return {};
}

// The old cells are those of --like, or of the entry that the JSON names in the archive of
// --palette.
std::optional<old_icons> find_old_icons(const import_options& options, game_file& game,
                                        const files::file_path& palette, const import_plan& plan) {
  if (!options.like.empty()) return icons_of_file(named_input(options.like));
  return icons_of_entry(game, palette, plan.entry);
}

void report(const import_options& options, const import_job& job) {
  const std::u8string subject = files::as_utf8(options.icon_file);
  for (const files::failure& fault : job.plan.faults) print_error(fault);
  if (job.changed_pixels > 0) {
    print_note({subject, counted(job.changed_pixels, "pixel") + " of " +
                             counted(job.changed_pictures, "picture") +
                             " changed to the nearest colour or transparency"});
  }
  if (job.shared_pixels > 0) {
    print_note({subject, counted(job.shared_pixels, "pixel") +
                             " got the lowest of several indices with their colour"});
  }
  if (job.plan.left_out > 0) {
    print_note({subject, counted(job.plan.left_out, "icon") +
                             " of the old icon file left out, as there are too few pictures"});
  }
}

int status_of(const import_job& job) {
  const bool is_exact =
      job.plan.faults.empty() && job.changed_pixels == 0 && job.plan.left_out == 0;
  return is_exact ? status_done : status_differs;
}

}  // namespace

int import_pictures(const import_options& options) {
  game_file game;
  const files::file_path palette = named_input(options.palette);
  read_game_file(game, palette);
  colour_finder colours(game.colours);
  import_plan plan = make_plan(options, colours);
  require_separate_output(options, plan);
  const std::optional<old_icons> old = find_old_icons(options, game, palette, plan);
  if (!options.like.empty()) keep_layout(plan, *old);
  remove_empty_end(plan);
  if (plan.icons.empty()) {
    throw data_error(files::as_utf8(options.sources.front()), "contains no pictures.");
  }
  if (plan.icons.size() > static_cast<std::size_t>(max_icons_per_file)) {
    throw data_error("An icon file has at most " + std::to_string(max_icons_per_file) + " icons.");
  }
  import_job job = {.plan = plan, .old = old, .icons = std::vector<shp_icon>(plan.icons.size())};
  make_all_icons(job, colours);
  write_result(options.icon_file, shared_shp_file(job.icons, plan.identifier));
  report(options, job);
  return status_of(job);
}

}  // namespace ostrane::command
