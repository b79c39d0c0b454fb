#include "command/import_sources.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "command/named_files.h"
#include "command/program.h"
#include "data/data_error.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/natural_order.h"
#include "pictures/gif_reader.h"
#include "pictures/png_reader.h"
#include "pictures/sheet_json_reader.h"

namespace ostrane::command {

namespace {

namespace fs = std::filesystem;

struct planning {
  const std::string& stem;  // of the icon file to make
  const grid_size& grid;
  colour_finder& colours;
  int exports = 0;  // JSONs of icon files so far
  import_plan plan = {};
  files::binary_file file = {};
};

std::string name_of(const fs::path& path) { return files::as_bytes(path.filename().u8string()); }
std::string stem_of(const fs::path& path) { return files::as_bytes(path.stem().u8string()); }

std::string key_of(const fs::path& path) {
  return files::upper_case(files::as_bytes(path.u8string()));
}

bool has_ending(const fs::path& path, const char* ending) {
  return files::lower_case(files::as_bytes(path.extension().u8string())) == ending;
}

// Reads a file that the output must not replace.
std::string read_input(planning& job, const files::file_path& path) {
  job.plan.inputs.push_back(path);
  return read_bytes(job.file, path);
}

void require_own_scale(const exported_icons& exported, const files::file_path& json) {
  if (exported.scale == 1) return;
  throw data_error(json.shown, "was exported at scale " + std::to_string(exported.scale) +
                                   "; export at scale 1.");
}

// The JSONs of several exports together do not tell the old icons.
void use_export(planning& job, const exported_icons& exported) {
  job.plan.identifier = exported.identifier;
  job.plan.entry = job.exports++ == 0 ? exported.name : u8"";
}

planned_icon known_from(const exported_icon& icon) {
  planned_icon planned = {.known = known_icon{icon.head, icon.last_column}};
  if (icon.number > 0) planned.old_index = static_cast<std::size_t>(icon.number) - 1;
  return planned;
}

void add_icons(planning& job, const exported_icons& exported, const files::file_path& json) {
  require_own_scale(exported, json);
  use_export(job, exported);
  for (const exported_icon& icon : exported.icons) {
    planned_icon planned = known_from(icon);
    if (icon.file) {
      planned.png = shown_as_named(json.system.parent_path() / *icon.file);
      job.plan.inputs.push_back(*planned.png);
    }
    job.plan.icons.push_back(std::move(planned));
  }
}

// The frames that the JSON of the icon file does not name come last.
void add_known_frames(planning& job, const sheet_layout& layout, const picture& sheet,
                      const files::file_path& json) {
  require_own_scale(*layout.exported, json);
  use_export(job, *layout.exported);
  std::vector<const sheet_frame*> left;
  for (const sheet_frame& frame : layout.frames) left.push_back(&frame);
  for (const exported_icon& icon : layout.exported->icons) {
    planned_icon planned = known_from(icon);
    if (icon.file) {
      const auto found = std::find_if(left.begin(), left.end(),
                                      [&](const auto* frame) { return frame->name == *icon.file; });
      if (found == left.end()) {
        throw data_error("it has no frame " + files::from_utf8_lossy(*icon.file));
      }
      planned.marked = picture_of(sheet, **found);
      left.erase(found);
    }
    job.plan.icons.push_back(std::move(planned));
  }
  for (const sheet_frame* frame : left) {
    job.plan.icons.push_back({.marked = picture_of(sheet, *frame)});
  }
}

void add_sheet(planning& job, const sheet_layout& layout, const files::file_path& json) {
  fs::path image = json.system;
  image.replace_extension(".png");
  if (!layout.image.empty()) image.replace_filename(layout.image);
  const files::file_path png = shown_as_named(image);
  const picture sheet = read_png(read_input(job, png), png.shown, job.colours);
  try {
    if (layout.exported) return add_known_frames(job, layout, sheet, json);
    for (const sheet_frame& frame : layout.frames) {
      job.plan.icons.push_back({.marked = picture_of(sheet, frame)});
    }
  } catch (const data_error& error) {
    if (!error.told.subject.empty()) throw;
    throw data_error(json.shown, "does not fit its sheet: " + error.told.reason + ".");
  }
}

// Its pictures are in the folder of `json`.
void add_json(planning& job, const std::string& text, const files::file_path& json) {
  const auto read = read_export_json(text, json.shown);
  if (const auto* layout = std::get_if<sheet_layout>(&read)) {
    add_sheet(job, *layout, json);
  } else {
    add_icons(job, std::get<exported_icons>(read), json);
  }
}

void add_json(planning& job, const files::file_path& json) {
  add_json(job, read_input(job, json), json);
}

void add_grid(planning& job, const files::file_path& png) {
  const picture sheet = read_png(read_input(job, png), png.shown, job.colours);
  try {
    for (const sheet_frame& frame : frames_of_grid(sheet, job.grid.columns, job.grid.rows)) {
      job.plan.icons.push_back(
          {.marked = picture_of(sheet, frame), .may_be_cut = true, .is_grid_cell = true});
    }
  } catch (const data_error& error) {
    throw data_error(png.shown, "cannot be cut: " + error.told.reason + ".");
  }
}

void add_gif(planning& job, const files::file_path& gif) {
  for (picture& shown : read_gif(read_input(job, gif), gif.shown, job.colours)) {
    job.plan.icons.push_back({.marked = std::move(shown), .may_be_cut = true});
  }
}

// The layout of the sheet that this PNG is, if the JSON beside it says so.
std::optional<sheet_layout> layout_of_sheet(planning& job, const files::file_path& png,
                                            const files::file_path& json) {
  std::optional<sheet_layout> layout;
  files::ignore_failure([&] {
    auto read = read_export_json(read_bytes(job.file, json), u8"");
    if (auto* found = std::get_if<sheet_layout>(&read)) layout = std::move(*found);
  });
  const bool is_of_other =
      layout && !layout->image.empty() && key_of(layout->image) != key_of(png.system.filename());
  return is_of_other ? std::nullopt : layout;
}

void add_png(planning& job, const files::file_path& png) {
  if (job.grid.columns > 0) return add_grid(job, png);
  const files::file_path json = shown_as_named(fs::path(png.system).replace_extension(".json"));
  if (const auto layout = layout_of_sheet(job, png, json)) {
    job.plan.inputs.push_back(json);
    return add_sheet(job, *layout, json);
  }
  if (stem_of(png.system).ends_with("-sheet")) {
    throw data_error(png.shown, "is a sheet without its JSON: give --grid COLSxROWS.");
  }
  job.plan.icons.push_back({.png = png});
  job.plan.inputs.push_back(png);
}

// Returns the JSON of the export in a folder. Those of sheets are used if there are no others.
std::optional<fs::path> json_of_export(const std::vector<fs::path>& files, const std::string& stem,
                                       const std::string& folder) {
  const std::string wanted = files::upper_case(stem);
  for (const bool is_sheet : {false, true}) {
    std::vector<fs::path> found;
    for (const fs::path& file : files) {
      const bool is_of_kind = stem_of(file).ends_with("-sheet") == is_sheet;
      if (has_ending(file, ".json") && is_of_kind) found.push_back(file);
    }
    if (found.size() == 1) return found.front();
    for (const fs::path& file : found) {
      const std::string name = files::upper_case(stem_of(file));
      if (name == (is_sheet ? wanted + "-SHEET" : wanted)) return file;
    }
    if (found.empty()) continue;
    throw data_error(files::as_utf8(folder),
                     "contains the JSON of several exports. Give the name of one of them.");
  }
  return {};
}

// True for "GEMS-0001.PNG" and the stem "GEMS".
bool is_numbered(const std::string& name, const std::string& stem) {
  const std::string prefix = files::upper_case(stem) + "-";
  const auto end = name.find_first_not_of("0123456789", prefix.size());
  return name.starts_with(prefix) && end != std::string::npos && name.substr(end) == ".PNG";
}

// Faults for the PNGs of the export that its JSON does not list. With several exports in the folder
// the name tells which one a PNG belongs to. Sheets and palettes have files of their own.
void add_unlisted_faults(planning& job, const std::vector<fs::path>& files, const fs::path& json) {
  std::unordered_set<std::string> known;
  for (const files::file_path& input : job.plan.inputs) known.insert(key_of(input.system));
  std::int64_t jsons = 0;
  for (const fs::path& file : files) {
    jsons += has_ending(file, ".json") ? 1 : 0;
    if (has_ending(file, ".gpl")) known.insert(key_of(fs::path(file).replace_extension(".png")));
  }
  for (const fs::path& file : files) {
    if (!has_ending(file, ".png") || known.contains(key_of(file))) continue;
    const std::string name = files::upper_case(name_of(file));
    if (stem_of(file).ends_with("-sheet") || (jsons > 1 && !is_numbered(name, stem_of(json)))) {
      continue;
    }
    job.plan.faults.push_back(
        {file.u8string(), "not imported: " + files::from_utf8_lossy(json.filename().u8string()) +
                              " does not list it"});
  }
}

std::vector<fs::path> files_in(const std::string& folder) {
  std::vector<files::listed_entry> listed;
  const fs::path path = path_of_argument(folder);
  const int failed = files::system_calls.list(path, listed);
  if (failed < 0) files::fail(files::as_utf8(folder), files::file_action::read, failed);
  std::vector<fs::path> files;
  for (const files::listed_entry& entry : listed) {
    if (entry.is_file && !entry.is_hidden) files.push_back(path / entry.name);
  }
  std::sort(files.begin(), files.end(), [](const fs::path& a, const fs::path& b) {
    return files::natural_less(name_of(a), name_of(b));
  });
  return files;
}

void add_folder(planning& job, const std::string& folder) {
  const std::vector<fs::path> files = files_in(folder);
  if (const auto json = json_of_export(files, job.stem, folder)) {
    add_json(job, shown_as_named(*json));
    add_unlisted_faults(job, files, *json);
    return;
  }
  for (const fs::path& file : files) {
    if (has_ending(file, ".png")) add_png(job, shown_as_named(file));
  }
}

// Standard input has no name that tells its format. Pictures of its JSON are in the current folder.
void add_input(planning& job) {
  const files::file_path input = named_input("-");
  const std::string bytes = read_bytes(job.file, input);
  if (bytes.starts_with("GIF8")) return add_gif(job, input);
  if (bytes.starts_with('{')) return add_json(job, bytes, {{}, input.shown});
  add_png(job, input);
}

void add_source(planning& job, const std::string& source) {
  std::error_code failed;
  const fs::path path = path_of_argument(source);
  if (source == "-") {
    add_input(job);
  } else if (fs::is_directory(path, failed)) {
    add_folder(job, source);
  } else if (has_ending(path, ".json")) {
    add_json(job, shown_as_named(path));
  } else if (has_ending(path, ".gif")) {
    add_gif(job, shown_as_named(path));
  } else {
    add_png(job, named_file(source));
  }
}

bool is_empty(const planned_icon& icon) {
  return icon.is_grid_cell && icon.marked && last_set_column(*icon.marked) < 0;
}

// The icons with pictures, without what is known of them.
std::vector<planned_icon> pictures_of(std::vector<planned_icon> icons) {
  std::erase_if(icons, [](const planned_icon& icon) { return !icon.has_picture(); });
  for (planned_icon& icon : icons) {
    icon.known.reset();
    icon.old_index.reset();
  }
  return icons;
}

}  // namespace

import_plan plan_of(const std::vector<std::string>& sources, const std::string& stem,
                    const grid_size& grid, colour_finder& colours) {
  planning job = {.stem = stem, .grid = grid, .colours = colours};
  for (const std::string& source : sources) add_source(job, source);
  return std::move(job.plan);
}

void keep_layout(import_plan& plan, const old_icons& from) {
  std::vector<planned_icon> pictures = pictures_of(std::exchange(plan.icons, {}));
  plan.identifier = from.icons.head.identifier;
  old_icon_reader reader(from);
  const std::size_t count = from.icons.positions.size();
  auto next = pictures.begin();
  for (std::size_t i = 0; i < count; ++i) {
    const stored_icon old = reader.read(i);
    if (old.drawn && next == pictures.end()) {
      plan.left_out = static_cast<std::int64_t>(count - i);
      break;
    }
    planned_icon icon = old.drawn ? std::move(*next++) : planned_icon();
    icon.known = known_icon{old.head, old.drawn ? last_set_column(*old.drawn) : 0};
    icon.old_index = i;
    plan.icons.push_back(std::move(icon));
  }
  std::move(next, pictures.end(), std::back_inserter(plan.icons));
}

void remove_empty_end(import_plan& plan) {
  while (!plan.icons.empty() && !plan.icons.back().known && is_empty(plan.icons.back())) {
    plan.icons.pop_back();
  }
}

}  // namespace ostrane::command
