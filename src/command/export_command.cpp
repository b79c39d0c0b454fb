#include <algorithm>
#include <cstdio>
#include <unordered_map>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/outputs.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/entry_file_name.h"
#include "data/entry_kind.h"
#include "data/icon_file.h"
#include "data/palette.h"
#include "files/code_page.h"
#include "files/text.h"
#include "pictures/icon_exporter.h"
#include "pictures/png_writer.h"

namespace ostrane::command {

namespace {

constexpr int palette_side = 16;

struct entries_export {
  const export_options& options;
  files::binary_file& archive;
  export_output output;
  rgb_palette palette = {};
  std::size_t skipped = 0;  // entries that were refused, or ended by an error
  int status = status_done;
};

struct exported_entry {
  std::string name;
  std::u8string stem;  // prefix of its file names
  entry_kind kind = entry_kind::other;
  entry_range range = {};
  bool is_whole = false;  // the archive has all of its bytes
};

picture_form form_named(const std::string& name) {
  if (name == "sheet") return picture_form::sheet;
  return name == "gif" ? picture_form::gif : picture_form::png;
}

void report_fault(entries_export& job, const exported_entry& entry, const std::string& reason) {
  print_error({files::to_utf8(entry.name), reason});
  job.status = status_differs;
}

void report_skipped(entries_export& job, const exported_entry& entry, const std::string& reason) {
  report_fault(job, entry, reason);
  ++job.skipped;
}

void export_icons(entries_export& job, const exported_entry& entry) {
  const export_options& options = job.options;
  make_icon_exporter()(
      job.output,
      {.entry = entry.name,
       .start = entry.range.start,
       .end = entry.range.end,
       .colours = job.palette,
       .form = form_named(options.form),
       .stem = entry.stem,
       .pace = options.pace,
       .scale = options.scale,
       .on_fault = [&](const std::string& reason) { report_fault(job, entry, reason); },
       .on_icon = [&](std::size_t number,
                      std::size_t count) { show_progress(number, count, entry.name); }});
}

std::string gpl_of(const std::string& name, const rgb_palette& colours) {
  std::string text =
      "GIMP Palette\nName: " + files::as_bytes(files::to_utf8(files::printable(name))) +
      "\nColumns: 16\n#\n";
  for (std::size_t i = 0; i < colours.size(); ++i) {
    std::array<char, 48> line = {};
    std::snprintf(line.data(), line.size(), "%3u %3u %3u\tIndex %zu\n", colours[i] >> 16U,
                  colours[i] >> 8U & 0xFFU, colours[i] & 0xFFU, i);
    text += line.data();
  }
  return text;
}

void export_palette(entries_export& job, const exported_entry& entry) {
  const std::int64_t size =
      std::min<std::int64_t>(entry.range.end, job.archive.size()) - entry.range.start;
  if (entry.range.start < 0 || size < std::int64_t{palette_colours * colour_size}) {
    report_skipped(job, entry, "it is too short for a palette");
    return;
  }
  const rgb_palette colours = read_colours(job.archive, entry.range.start);
  picture drawn(palette_side, palette_side);
  for (int i = 0; i < palette_side * palette_side; ++i) {
    drawn.set(i % palette_side, i / palette_side, static_cast<std::uint8_t>(i));
  }
  write_export(job.output, entry.stem + u8".png",
               png_of(drawn, colours, colours, job.options.scale));
  write_export(job.output, entry.stem + u8".gpl", gpl_of(entry.name, colours));
}

void export_text(entries_export& job, const exported_entry& entry) {
  if (!entry.is_whole) {
    report_skipped(job, entry, "the archive does not contain all of it");
    return;
  }
  std::string text(static_cast<std::size_t>(entry.range.size()), ' ');
  job.archive.seek(entry.range.start);
  job.archive.read(std::as_writable_bytes(std::span(text)));
  std::replace(text.begin(), text.end(), '\0', ' ');
  write_export(job.output, entry.stem + u8".txt", files::as_bytes(files::to_utf8(text)));
}

void export_one(entries_export& job, const exported_entry& entry) {
  const std::string unsafe = unsafe_name_reason(entry.name);
  if (!unsafe.empty()) {
    report_skipped(job, entry, "skipped: " + unsafe);
  } else if (entry.kind == entry_kind::palette) {
    export_palette(job, entry);
  } else if (entry.kind == entry_kind::text) {
    export_text(job, entry);
  } else if (entry.kind == entry_kind::other) {
    report_skipped(job, entry, "skipped: it is not an icon file, palette or text");
  } else {
    export_icons(job, entry);
  }
}

void export_entry(entries_export& job, const exported_entry& entry) {
  try {
    export_one(job, entry);
  } catch (const data_error& error) {
    require_unchanged(job.archive, job.output.stamp, "export");
    report_skipped(job, entry, error.told.reason);
  }
}

std::vector<exported_entry> chosen_exports(const archive_index& index,
                                           const export_options& options) {
  const std::vector<bool> chosen = chosen_entries(index.records, options.names);
  std::vector<exported_entry> entries;
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    if (!chosen[i]) continue;
    const std::string name = name_with_blanks(index.records[i].name);
    const entry_kind kind = kind_of_entry(name_without_nuls(index.records[i].name));
    const bool is_sheet = kind == entry_kind::icons && options.form == "sheet";
    entries.push_back({.name = name,
                       .stem = files::to_utf8(stem_of_entry(name)) + (is_sheet ? u8"-sheet" : u8""),
                       .kind = kind,
                       .range = range_of(index.records, static_cast<std::int32_t>(i)),
                       .is_whole = is_whole(index, i)});
  }
  return entries;
}

std::int64_t count_cells(entries_export& job, const std::vector<exported_entry>& entries) {
  std::int64_t cells = 0;
  for (std::size_t i = 0; i < entries.size() && cells <= max_job_cells; ++i) {
    if (entries[i].kind != entry_kind::icons) continue;
    show_progress(i, entries.size(), entries[i].name);
    cells += count_picture_cells(
        job.archive, read_icon_file(job.archive, entries[i].range.start, entries[i].range.end));
  }
  return cells;
}

void require_reasonable_size(std::int64_t cells) {
  if (cells <= max_job_cells) return;
  throw data_error("The pictures of these entries have more than " + std::to_string(max_job_cells) +
                   " cells together, which is the most for one export.");
}

std::vector<std::u8string> files_of(entries_export& job, const exported_entry& entry) {
  if (entry.kind == entry_kind::palette) return {entry.stem + u8".png", entry.stem + u8".gpl"};
  if (entry.kind == entry_kind::text) return {entry.stem + u8".txt"};
  if (entry.kind == entry_kind::other) return {};
  const icon_file from = read_icon_file(job.archive, entry.range.start, entry.range.end);
  return exported_files(form_named(job.options.form), entry.stem, 1, from.positions.size());
}

// No file may be the archive or that of another entry. Checked before any file is written.
void require_separate_files(entries_export& job, const std::vector<exported_entry>& entries) {
  std::unordered_map<std::string, const exported_entry*> owners;  // by names in upper case
  for (const exported_entry& entry : entries) {
    if (!unsafe_name_reason(entry.name).empty()) continue;
    for (const std::u8string& name : files_of(job, entry)) {
      const auto [found, is_new] =
          owners.emplace(files::upper_case(files::from_utf8_lossy(name)), &entry);
      if (!is_new) {
        throw data_error(name, "cannot be written: it would be a file of both " +
                                   found->second->name + " and " + entry.name + ".");
      }
      require_other_file(files::as_bytes(job.output.target(name).shown),
                         path_of_argument(job.options.archive));
    }
  }
}

}  // namespace

int export_entries(const export_options& options) {
  const files::file_path archive = named_input(options.archive);
  const archive_index index = read_archive_index(archive);
  const std::vector<exported_entry> entries = chosen_exports(index, options);
  files::binary_file file;
  open_unchanged(file, archive, index.stamp);
  entries_export job = {
      .options = options,
      .archive = file,
      .output = {.archive = file,
                 .stamp = index.stamp,
                 .target =
                     [&options](const std::u8string& name) {
                       return shown_as_named(path_of_argument(options.folder) / name);
                     },
                 .may_write =
                     [](const files::file_path& to) {
                       report_write(to.shown);
                       return !is_dry_run();
                     }}};
  require_reasonable_size(count_cells(job, entries));
  require_separate_files(job, entries);
  prepare_folder(options.folder);
  job.palette = read_game_colours(job.archive, index.records);
  for (const exported_entry& entry : entries) export_entry(job, entry);
  return job.skipped > 0 && job.skipped == entries.size() ? status_failed : job.status;
}

}  // namespace ostrane::command
