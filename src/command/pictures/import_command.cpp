#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/pictures/import_sources.h"
#include "command/pictures/png_reader.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/palette.h"
#include "files/whole_file.h"

namespace ostrane::command {

namespace {

colour_table read_palette_argument(const std::string& argument) {
  const files::file_path path = named_file(argument);
  files::binary_file file;
  file.open_to_read(path);
  if (file.size() == std::int64_t{palette_colours * colour_size}) return read_colours(file, 0);
  const archive_index index = read_archive_index(path);
  return read_game_colours(file, index.records);
}

struct import_job {
  colour_finder colours;
  files::binary_file file = {};
  std::int64_t inexact_pixels = 0;
  std::int64_t inexact_pictures = 0;
};

shp_icon make_icon_of(import_job& job, const planned_icon& planned) {
  if (!planned.png) return {planned.known->head, ""};
  const std::string bytes = read_whole_file(job.file, *planned.png);
  const png_picture read = read_png(bytes, planned.png->shown, job.colours);
  job.inexact_pixels += read.inexact;
  if (read.inexact > 0) ++job.inexact_pictures;
  try {
    return new_icon(read.drawn, planned.known);
  } catch (const data_error& error) {
    throw data_error(planned.png->shown + " cannot become an icon: " + error.text + ".");
  }
}

int report(const import_options& options, const import_job& job) {
  if (job.inexact_pixels == 0) return status_done;
  note(options.icon_file, std::to_string(job.inexact_pixels) + " pixels of " +
                              std::to_string(job.inexact_pictures) +
                              " pictures were not exact and got the nearest colour");
  return status_differs;
}

}  // namespace

int import_pictures(const import_options& options) {
  import_plan plan =
      plan_of(options.sources, argument_of_path(path_of_argument(options.icon_file).stem()));
  if (!options.like.empty()) plan = plan_like(plan, named_file(options.like));
  if (plan.icons.empty()) throw data_error(options.sources.front() + ": holds no pictures.");
  if (plan.icons.size() > static_cast<std::size_t>(max_icons_per_file)) {
    throw data_error("An icon file holds at most " + std::to_string(max_icons_per_file) +
                     " icons.");
  }
  import_job job = {.colours = colour_finder(read_palette_argument(options.palette))};
  std::vector<shp_icon> icons;
  icons.reserve(plan.icons.size());
  for (const planned_icon& planned : plan.icons) {
    show_progress(icons.size(), plan.icons.size(), "");
    icons.push_back(make_icon_of(job, planned));
  }
  write_result(options.icon_file, shp_file(icons, plan.identifier, true));
  return report(options, job);
}

}  // namespace ostrane::command
