#include "command/import_sources.h"

#include <algorithm>
#include <memory>

#include "command/named_files.h"
#include "command/program.h"
#include "data/data_error.h"
#include "data/icon_file.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/system_name.h"
#include "files/text.h"
#include "pictures/icon_json.h"

namespace ostrane::command {

namespace {

namespace fs = std::filesystem;

bool has_ending(const fs::path& path, const char* ending) {
  return files::lower_case(files::as_bytes(path.extension().u8string())) == ending;
}

void add_export(import_plan& plan, const fs::path& json) {
  files::binary_file file;
  const files::file_path path = shown_as_named(json);
  const exported_icons exported = read_icon_json(read_bytes(file, path), path.shown);
  if (exported.scale != 1) {
    throw data_error(path.shown, "was exported at scale " + std::to_string(exported.scale) +
                                     "; export at scale 1.");
  }
  plan.identifier = exported.identifier;
  for (const exported_icon& icon : exported.icons) {
    planned_icon planned = {.png = {}, .known = known_icon{icon.head, icon.last_column}};
    if (icon.file) planned.png = shown_as_named(json.parent_path() / *icon.file);
    plan.icons.push_back(planned);
  }
}

// Returns the JSON of the export in a folder. The JSONs of sheets are ignored.
std::optional<fs::path> json_of_export(const std::vector<fs::path>& files, const std::string& stem,
                                       const std::string& folder) {
  std::vector<fs::path> found;
  for (const fs::path& file : files) {
    const bool is_sheet = file.stem().u8string().ends_with(u8"-sheet");
    if (has_ending(file, ".json") && !is_sheet) found.push_back(file);
  }
  if (found.empty()) return {};
  if (found.size() == 1) return found.front();
  for (const fs::path& file : found) {
    if (files::upper_case(files::as_bytes(file.stem().u8string())) == files::upper_case(stem)) {
      return file;
    }
  }
  throw data_error(files::as_utf8(folder),
                   "contains the JSON of several exports. Give the name of one of them.");
}

void add_folder(import_plan& plan, const std::string& folder, const std::string& stem) {
  std::vector<files::listed_entry> listed;
  const fs::path path = path_of_argument(folder);
  const int failed = files::system_calls.list(path, listed);
  if (failed < 0) files::fail(files::as_utf8(folder), files::file_action::read, failed);
  std::vector<fs::path> files;
  for (const files::listed_entry& entry : listed) {
    if (entry.is_file && !entry.is_hidden) files.push_back(path / entry.name);
  }
  std::sort(files.begin(), files.end());
  if (const auto json = json_of_export(files, stem, folder)) {
    add_export(plan, *json);
    return;
  }
  for (const fs::path& file : files) {
    if (has_ending(file, ".png")) plan.icons.push_back({.png = shown_as_named(file), .known = {}});
  }
}

// Returns nothing for an icon that is not drawable.
std::optional<std::int32_t> last_column_of(icon_stream& stream, files::binary_file& file,
                                           const icon_file& from, const icon_head& head,
                                           std::int32_t position) {
  if (classify_icon(head) != icon_kind::drawable || !has_picture(head)) return {};
  return last_set_column(read_icon_picture(stream, file, from, head, position));
}

}  // namespace

import_plan plan_of(const std::vector<std::string>& sources, const std::string& stem) {
  import_plan plan;
  for (const std::string& source : sources) {
    std::error_code failed;
    const fs::path path = path_of_argument(source);
    if (fs::is_directory(path, failed)) {
      add_folder(plan, source, stem);
    } else if (has_ending(path, ".json")) {
      add_export(plan, path);
    } else {
      plan.icons.push_back({.png = named_file(source), .known = {}});
    }
  }
  return plan;
}

import_plan plan_like(const import_plan& plan, const files::file_path& old_file) {
  files::binary_file file;
  file.open_to_read(old_file);
  const icon_file from = read_icon_file(
      file, 0, static_cast<std::int32_t>(std::min<std::int64_t>(file.size(), INT32_MAX)));
  if (file.size() < std::int64_t{shp_head_size}) {
    throw data_error(old_file.shown, "is too short for an icon file.");
  }
  std::vector<files::file_path> pngs;
  for (const planned_icon& icon : plan.icons) {
    if (icon.png) pngs.push_back(*icon.png);
  }
  const auto stream = std::make_unique<icon_stream>();
  import_plan like = {.identifier = from.head.identifier};
  auto next = pngs.begin();
  for (const std::int32_t position : from.positions) {
    icon_head head = blank_head;
    if (position <= 0 || !read_icon_head(file, position, head)) {
      like.icons.push_back({.png = {}, .known = known_icon{head, 0}});
      continue;
    }
    const auto last_column = last_column_of(*stream, file, from, head, position);
    if (last_column && next == pngs.end()) {
      like.left_out = static_cast<std::int64_t>(from.positions.size() - like.icons.size());
      break;
    }
    planned_icon icon = {.png = {}, .known = known_icon{head, last_column.value_or(0)}};
    if (last_column) icon.png = *next++;
    like.icons.push_back(icon);
  }
  for (; next != pngs.end(); ++next) like.icons.push_back({.png = *next, .known = {}});
  return like;
}

}  // namespace ostrane::command
