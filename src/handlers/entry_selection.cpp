#include "handlers/entry_selection.h"

#include <algorithm>
#include <string>

#include "data/entry_kind.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "handlers/text_view.h"
#include "icons/series.h"
#include "icons/slots.h"
#include "palette/palette_view.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

std::string selected_row() { return Form1.List1.List(Form1.List1.ListIndex()); }

bool reads_archive(entry_kind kind) {
  return kind == entry_kind::icons || kind == entry_kind::text;
}

void report_unknown_kind(const std::string& row) {
  forms_layer::message_box("This is not a shp image, I haven't got to display this yet... " + row);
}

void add_description(const std::string& row) {
  const std::size_t found = find_icon_name(tool_state.icon_names, row);
  if (found == 0) return;
  Form1.Frame1.Caption = Form1.Frame1.Caption() + " - " + tool_state.icon_names[found].description;
}

}  // namespace

void show_clicked_entry() {
  const std::string row = selected_row();
  const entry_kind kind = kind_of_entry(row);
  if (reads_archive(kind)) require_open_archive();
  Form1.Text6.Visible = false;
  Form1.Frame1.Caption = row;
  tool_state.selected_index = Form1.List1.ListIndex();
  switch (kind) {
    case entry_kind::icons:
      Form1.Text2.Text = "";
      clear_slots_for_icons();
      show_shp_series();
      Form1.Command5.Enabled = true;
      break;
    case entry_kind::palette:
      show_palette_view();
      break;
    case entry_kind::text:
      Form1.Text6.Visible = true;
      show_text_entry();
      break;
    case entry_kind::other:
      report_unknown_kind(row);
      break;
  }
  add_description(row);
  Form1.Refresh();
}

void show_double_clicked_entry() {
  const std::string row = selected_row();
  const entry_kind kind = kind_of_entry(row);
  if (kind == entry_kind::palette) return;
  if (kind != entry_kind::icons) return report_unknown_kind(row);
  require_open_archive();
  Form1.Text2.Text = "";
  tool_state.selected_index = Form1.List1.ListIndex();
  const std::int32_t last =
      std::min<std::int32_t>(tool_state.shp_head.icon_count, tool_state.slots_loaded);
  for (std::int32_t slot = 1; slot <= last; ++slot) empty_slot(slot);
  show_shp_series();
  Form1.Command5.Enabled = true;
}

}  // namespace ostrane
