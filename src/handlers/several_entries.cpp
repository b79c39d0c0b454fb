#include "handlers/several_entries.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "archive/extract_rows.h"
#include "archive/skipped_files.h"
#include "data/entry_file_name.h"
#include "data/entry_kind.h"
#include "files/code_page.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "forms_layer/screen.h"
#include "handlers/export_entry.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

namespace fs = std::filesystem;

std::vector<std::int32_t> without_end_record(std::vector<std::int32_t> rows) {
  std::erase_if(rows, [](std::int32_t row) { return row >= tool_state.record_count - 1; });
  return rows;
}

// Returns why that failed, or "". Appends the icons that were skipped to `skipped`.
std::string export_row(std::int32_t row, const fs::path& folder,
                       std::vector<skipped_file>& skipped) {
  const std::string name = entry_name(row);
  if (kind_of_entry(name) != entry_kind::icons) return "it is no icon file";
  const auto skip = [&](const std::string& reason) { skipped.push_back({name, reason}); };
  const auto target = [&folder](const std::u8string& file) {
    return files::from_system_path(folder / file);
  };
  return export_entry({.entry = name, .stem = files::to_utf8(proposed_stem(row)), .on_fault = skip},
                      row, {target});
}

std::string export_rows(const std::vector<std::int32_t>& rows, const fs::path& folder) {
  std::vector<skipped_file> skipped;
  std::size_t failed = 0;
  files::clear_leftovers(folder);
  for (const std::int32_t row : rows) {
    const std::string failure = export_row(row, folder, skipped);
    if (failure.empty()) continue;
    skipped.push_back({entry_name(row), failure});
    ++failed;
  }
  return skipped_files_text(skipped, failed < rows.size()
                                         ? "The pictures were exported, with these exceptions:"
                                         : "No pictures were exported:");
}

}  // namespace

bool is_one_of_several(std::int32_t row) {
  const std::vector<std::int32_t>& selected = Form1.List1.SelectedRows();
  const bool is_selected = std::find(selected.begin(), selected.end(), row) != selected.end();
  return is_selected && without_end_record(selected).size() > 1;
}

void prepare_several_entries() {
  tool_state.menu_rows = without_end_record(Form1.List1.SelectedRows());
  const std::string count = std::to_string(tool_state.menu_rows.size());
  Form1.mnu_extract_entries.Caption = "Extract " + count + " entries\x85";
  Form1.mnu_export_entries.Caption = "Export " + count + " entries as pictures\x85";
  const bool is_open = tool_state.archive_is_open == flag_true;
  Form1.mnu_extract_entries.Enabled = is_open;
  Form1.mnu_export_entries.Enabled = is_open && tool_state.export_icons != nullptr;
}

void extract_several_entries() {
  const fs::path folder = forms_layer::the_screen().ask_folder("Extract the entries into a folder");
  if (!folder.empty()) forms_layer::report(extract_rows(tool_state.menu_rows, folder));
}

void export_several_entries() {
  const fs::path folder = forms_layer::the_screen().ask_folder("Export the pictures into a folder");
  if (!folder.empty()) forms_layer::report(export_rows(tool_state.menu_rows, folder));
}

void drag_entries(const std::vector<std::int32_t>& rows) {
  const std::vector<std::int32_t> dragged = without_end_record(rows);
  std::vector<fs::path> names;
  for (const std::int32_t row : dragged) {
    const std::string name = entry_name(row);
    if (unsafe_name_reason(name).empty()) names.push_back(files::system_name(name));
  }
  if (names.empty() || tool_state.archive_is_open == flag_false) return;
  forms_layer::the_screen().drag_files(
      names, [dragged](const fs::path& folder) { return extract_rows(dragged, folder); });
}

}  // namespace ostrane
