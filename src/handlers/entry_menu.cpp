#include "handlers/entry_menu.h"

#include <string>

#include "archive/skipped_files.h"
#include "data/entry_file_name.h"
#include "data/extraction.h"
#include "files/paths.h"
#include "files/work_files.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "forms_layer/screen.h"
#include "handlers/several_entries.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

constexpr const char* not_extracted = "This entry was not extracted:";

extraction_result extract_to(const std::filesystem::path& path) {
  const auto wanted = static_cast<std::size_t>(tool_state.menu_target);
  return extract_entries(tool_state.archive_file, index_records(),
                         [&path](const std::string&) { return files::from_system_path(path); }, {},
                         {.is_wanted = [wanted](std::size_t index) { return index == wanted; },
                          .entries_are_adjacent = false,
                          .rules = {.mode = files::write_mode::atomic}});
}

}  // namespace

bool has_entry_menu(std::int32_t row) {
  return is_one_of_several(row) || row < tool_state.record_count - 1;
}

void prepare_entry_menu(std::int32_t row) {
  tool_state.menu_target = row;
  Form1.mnu_extract_entry.Enabled = tool_state.archive_is_open == flag_true;
  Form1.mnu_entry.items = {&Form1.mnu_extract_entry};
  if (!is_one_of_several(row)) return;
  prepare_several_entries();
  Form1.mnu_entry.items = {&Form1.mnu_extract_entries, &Form1.mnu_export_entries};
}

void extract_one_entry() {
  const std::string name = entry_name(tool_state.menu_target);
  const std::string unsafe = unsafe_name_reason(name);
  if (!unsafe.empty()) {
    return forms_layer::message_box(skipped_files_text({{name, unsafe}}, not_extracted));
  }
  const forms_layer::save_answer answer = forms_layer::the_screen().ask_save_path(
      {.title = "Extract this entry", .stem = name, .kinds = {{"All files", ""}}});
  if (answer.path.empty()) return;
  extraction_result result;
  std::string failure = read_open_archive([&] {
    files::clear_leftovers(answer.path.parent_path());
    result = extract_to(answer.path);
  });
  if (failure.empty()) failure = files::sentence_of(result.stopped);
  forms_layer::report(failure.empty() ? skipped_files_text(result.skipped, not_extracted)
                                      : failure + " The entry was not extracted.");
}

void extract_selection() {
  const std::vector<std::int32_t>& selected = Form1.List1.SelectedRows();
  const std::int32_t row = selected.empty() ? Form1.List1.ListIndex() : selected.front();
  if (row < 0 || !has_entry_menu(row)) return;
  prepare_entry_menu(row);
  const forms_layer::menu_item& extracts = *Form1.mnu_entry.items.front();
  if (extracts.Enabled()) extracts.Click();
}

}  // namespace ostrane
