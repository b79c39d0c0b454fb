#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <system_error>
#include <thread>

#include "command/commands.h"
#include "command/console.h"
#include "command/import_sources.h"
#include "command/named_files.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/number_text.h"
#include "data/palette.h"
#include "files/code_page.h"
#include "pictures/png_reader.h"

namespace ostrane::command {

namespace {

rgb_palette read_palette_argument(const std::string& argument) {
  const files::file_path path = named_file(argument);
  files::binary_file file;
  file.open_to_read(path);
  if (file.size() == std::int64_t{palette_colours * colour_size}) return read_colours(file, 0);
  const archive_index index = read_archive_index(path);
  return read_game_colours(file, index.records);
}

// What the threads of an import share.
struct import_job {
  const import_plan& plan;
  std::vector<shp_icon> icons;
  std::atomic<std::size_t> next = 0;  // index of the next icon to make
  std::atomic<bool> stops = false;
  std::atomic<std::int64_t> inexact_pixels = 0;
  std::atomic<std::int64_t> inexact_pictures = 0;
};

shp_icon make_icon_of(import_job& job, const planned_icon& planned, colour_finder& colours,
                      files::binary_file& file) {
  if (!planned.png) return {planned.known->head, ""};
  const std::string bytes = read_bytes(file, *planned.png);
  const png_picture read = read_png(bytes, planned.png->shown, colours);
  job.inexact_pixels += read.inexact;
  if (read.inexact > 0) ++job.inexact_pictures;
  try {
    return new_icon(read.drawn, planned.known);
  } catch (const data_error& error) {
    throw data_error(planned.png->shown, "cannot become an icon: " + error.told.reason + ".");
  }
}

// Makes icons until all are made or a thread fails.
void make_icons(import_job& job, colour_finder colours) {
  files::binary_file file;
  try {
    for (std::size_t i = job.next++; i < job.icons.size() && !job.stops; i = job.next++) {
      job.icons[i] = make_icon_of(job, job.plan.icons[i], colours, file);
    }
  } catch (...) {
    job.stops = true;
    throw;
  }
}

// Decoding a PNG and packing an icon are CPU-bound, so there is one thread per processor.
void make_all_icons(import_job& job, const colour_finder& colours) {
  constexpr auto poll_interval = std::chrono::milliseconds(20);
  constexpr std::size_t max_threads = 8;
  const auto count = std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, max_threads);
  std::vector<std::future<void>> threads;
  const struct stopping {  // destroyed before the futures, whose destructors block
    import_job& job;
    ~stopping() { job.stops = true; }
  } at_end{job};
  try {
    for (std::size_t i = 0; i < std::min(count, job.icons.size()); ++i) {
      threads.push_back(std::async(std::launch::async, [&] { make_icons(job, colours); }));
    }
  } catch (const std::system_error&) {
    // The system allows no more threads.
    if (threads.empty()) make_icons(job, colours);
  }
  for (std::future<void>& thread : threads) {
    while (thread.wait_for(poll_interval) != std::future_status::ready) {
      show_progress(std::min(job.next.load(), job.icons.size()), job.icons.size(), "");
    }
    thread.get();
  }
}

int report_inexact_pixels(const import_options& options, const import_job& job) {
  if (job.inexact_pixels == 0) return status_done;
  print_note(
      {files::as_utf8(options.icon_file), counted(job.inexact_pixels, "pixel") + " of " +
                                              counted(job.inexact_pictures, "picture") +
                                              " changed to the nearest colour or transparency"});
  return status_differs;
}

import_plan make_plan(const import_options& options) {
  const auto require_other = [&options](const std::string& input) {
    require_other_file(options.icon_file, input);
  };
  require_other(options.palette);
  std::for_each(options.sources.begin(), options.sources.end(), require_other);
  import_plan plan = plan_of(
      options.sources, files::as_bytes(path_of_argument(options.icon_file).stem().u8string()));
  for (const planned_icon& icon : plan.icons) {
    if (icon.png) require_other(files::as_bytes(icon.png->shown));
  }
  if (!options.like.empty()) plan = plan_like(plan, named_file(options.like));
  return plan;
}

// The options --like and -o may name the same file.
int report_left_out_icons(const import_options& options, const import_plan& plan) {
  if (plan.left_out == 0) return status_done;
  print_note({files::as_utf8(options.icon_file),
              counted(plan.left_out, "icon") +
                  " of the old icon file left out, as there are too few pictures"});
  return status_differs;
}

}  // namespace

int import_pictures(const import_options& options) {
  const import_plan plan = make_plan(options);
  if (plan.icons.empty()) {
    throw data_error(files::as_utf8(options.sources.front()), "contains no pictures.");
  }
  if (plan.icons.size() > static_cast<std::size_t>(max_icons_per_file)) {
    throw data_error("An icon file has at most " + std::to_string(max_icons_per_file) + " icons.");
  }
  import_job job = {.plan = plan, .icons = std::vector<shp_icon>(plan.icons.size())};
  make_all_icons(job, colour_finder(read_palette_argument(options.palette)));
  write_result(options.icon_file, shp_file(job.icons, plan.identifier, true));
  const int inexact = report_inexact_pixels(options, job);
  return std::max(inexact, report_left_out_icons(options, plan));
}

}  // namespace ostrane::command
