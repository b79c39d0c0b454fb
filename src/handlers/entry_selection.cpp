#include "handlers/entry_selection.h"

#include <algorithm>
#include <string>

#include "files/code_page.h"
#include "files/text.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "icons/series.h"
#include "icons/slots.h"
#include "lists/text_view.h"
#include "palette/palette_view.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

std::string selected_row() { return Form1.List1.List(Form1.List1.ListIndex()); }

std::string extension_of(const std::string& row) {
  return files::lower_case(files::last_characters(files::trimmed(row), 4));
}

bool is_text(const std::string& row) {
  return extension_of(row) == ".txt" || files::trimmed(row) == "000DATUP.000";
}

void report_unknown_kind(const std::string& row) {
  forms_layer::message_box("This is not a shp image, I haven't got to display this yet... " + row);
}

void draw_first_series() {
  tool_state.series_first_icon = 0;
  tool_state.series_next_icon = 0;
  show_shp_series();
  Form1.Command5.Enabled = true;
}

void add_description(const std::string& row) {
  const std::size_t found = find_icon_name(tool_state.icon_names, row);
  if (found == 0) return;
  Form1.Frame1.Caption = Form1.Frame1.Caption() + " - " + tool_state.icon_names[found].description;
}

}  // namespace

void show_clicked_entry() {
  const std::string row = selected_row();
  Form1.Text6.Visible = false;
  Form1.Frame1.Caption = row;
  tool_state.selected_index = Form1.List1.ListIndex();
  if (extension_of(row) == ".shp") {
    Form1.Text2.Text = "";
    clear_slots_for_icons();
    draw_first_series();
  } else if (extension_of(row) == ".pal") {
    show_palette_view();
  } else if (is_text(row)) {
    Form1.Text6.Visible = true;
    show_text_entry();
  } else {
    report_unknown_kind(row);
  }
  add_description(row);
  Form1.Refresh();
}

void show_double_clicked_entry() {
  const std::string row = selected_row();
  if (extension_of(row) == ".pal") return;
  if (extension_of(row) != ".shp") {
    report_unknown_kind(row);
    return;
  }
  Form1.Text2.Text = "";
  tool_state.selected_index = Form1.List1.ListIndex();
  const std::int32_t last =
      std::min<std::int32_t>(tool_state.shp_head.icon_count, tool_state.slots_loaded);
  for (std::int32_t slot = 1; slot <= last; ++slot) shrink_slot(slot);
  draw_first_series();
}

}  // namespace ostrane
