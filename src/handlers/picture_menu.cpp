#include "handlers/picture_menu.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "archive/skipped_files.h"
#include "files/code_page.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "forms_layer/screen.h"
#include "handlers/export_entry.h"
#include "icons/motion.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

constexpr std::size_t kind_of_pngs = 1;  // index of a file_kind

std::size_t icon_number_of(std::int32_t slot) {
  return static_cast<std::size_t>(tool_state.series_first_icon) + static_cast<std::size_t>(slot) -
         1;
}

// "GEMS" for "GEMS-0001"; nullopt for other names.
std::optional<std::u8string> without_number(const std::u8string& stem) {
  const std::size_t digits_at = stem.find_last_not_of(u8"0123456789") + 1;
  if (digits_at < 2 || stem[digits_at - 1] != u8'-' || stem.size() - digits_at < 4) return {};
  return stem.substr(0, digits_at - 1);
}

bool is_series(const icon_export& wanted) { return wanted.form != picture_form::picture; }

bool has_ending(const std::filesystem::path& path, const char* lower_case) {
  return files::lower_case(files::as_bytes(path.extension().u8string())) == lower_case;
}

// Sets the form and the names of the files. The ending is a known one.
void apply_name(icon_export& wanted, const forms_layer::save_answer& answer) {
  wanted.stem = answer.path.stem().u8string();
  if (!is_series(wanted)) return;
  if (has_ending(answer.path, ".gif")) {
    wanted.form = picture_form::gif;
    return;
  }
  const std::optional<std::u8string> stem = without_number(wanted.stem);
  const bool are_pngs = stem || answer.kind == kind_of_pngs;
  wanted.form = are_pngs ? picture_form::png : picture_form::sheet;
  if (stem) wanted.stem = *stem;
}

// The chosen file is replaced as it is spelled, whatever the case of its ending.
files::file_path target_of(picture_form form, const std::filesystem::path& chosen,
                           const std::u8string& name) {
  const bool is_other = form == picture_form::png || name.ends_with(u8".json");
  return files::from_system_path(is_other ? chosen.parent_path() / name : chosen);
}

// Returns a message for the user, or "".
std::string save(icon_export wanted, const forms_layer::save_answer& answer,
                 const std::string& what) {
  constexpr std::int32_t milliseconds_per_hundredth = 10;
  const std::string not_saved = " The " + what + " was not saved.";
  if (answer.path.empty()) return "";
  const bool is_gif = is_series(wanted) && has_ending(answer.path, ".gif");
  if (!is_gif && !has_ending(answer.path, ".png")) {
    return std::string("The name of the file must end in \".png\"") +
           (is_series(wanted) ? " or \".gif\"" : "") + "." + not_saved;
  }
  apply_name(wanted, answer);
  std::vector<skipped_file> skipped;
  const std::string entry = entry_name(tool_state.directory_index);
  wanted.entry = entry;
  wanted.pace = std::max(1, motion_interval() / milliseconds_per_hundredth);
  wanted.on_fault = [&](const std::string& reason) { skipped.push_back({entry, reason}); };
  files::clear_leftovers(answer.path.parent_path());
  const auto target = [&](const std::u8string& name) {
    return target_of(wanted.form, answer.path, name);
  };
  const std::string failure = export_entry(wanted, tool_state.directory_index, {target, true});
  if (!failure.empty()) return failure + not_saved;
  const std::string saved = "The " + what + " was saved, with these exceptions:";
  return skipped_files_text(skipped, saved.c_str());
}

}  // namespace

bool shows_icon(std::int32_t slot) {
  // A text covers the icons. A swatch of a palette has no pixels.
  return !Form1.Text6.Visible() && Form1.s16_image(slot).pixels() != nullptr;
}

void prepare_picture_menu(std::int32_t slot) {
  tool_state.menu_target = slot;
  if (tool_state.export_icons == nullptr) Form1.mnu_picture.items = {&Form1.mnu_copy_picture};
  const bool can_be_saved = icons_are_from_open_archive() && tool_state.export_icons != nullptr;
  Form1.mnu_save_picture.Enabled = can_be_saved;
  Form1.mnu_save_series.Enabled = can_be_saved;
}

void copy_picture() {
  forms_layer::the_screen().copy_picture(Form1.s16_image(tool_state.menu_target));
}

void save_picture() {
  const std::size_t number = icon_number_of(tool_state.menu_target);
  const std::string name = files::from_utf8_lossy(
      png_name(files::to_utf8(proposed_stem(tool_state.directory_index)), number));
  const forms_layer::save_answer answer =
      forms_layer::the_screen().ask_save_path({.title = "Save picture",
                                               .stem = name.substr(0, name.rfind('.')),
                                               .kinds = {{"PNG", ".png"}}});
  forms_layer::report(
      save({.form = picture_form::picture, .first = number, .last = number}, answer, "picture"));
}

void save_series() {
  const std::size_t first = icon_number_of(1);
  const forms_layer::save_answer answer = forms_layer::the_screen().ask_save_path(
      {.title = "Save series",
       .stem = proposed_stem(tool_state.directory_index),
       .kinds = {{"One PNG with all icons", "-sheet.png"},
                 {"One PNG per icon", files::as_bytes(png_name(u8"", first))},
                 {"Motion", ".gif"}}});
  const auto last = static_cast<std::size_t>(tool_state.next_icon - 1);
  forms_layer::report(save({.first = first, .last = last}, answer, "series"));
}

}  // namespace ostrane
