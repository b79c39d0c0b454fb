#include "icons/icon_report.h"

#include <string>

#include "data/archive_format.h"
#include "data/entry_kind.h"
#include "data/number_text.h"
#include "forms/form1.h"
#include "progress/progress.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

std::string report_line(const char* label, std::int64_t number) {
  return label + sign_column_text(number) + "\r";
}

std::string icon_report(std::int32_t Index, const dat_record& entry) {
  const icon_data_record& icon = tool_state.slot_data[static_cast<std::size_t>(Index)];
  return report_line("Number of cols(0-#)         : ", icon.cols) +
         report_line("Number of rows(0-#)         : ", icon.rows) +
         report_line("First column with data      : ", icon.first_col) +
         report_line("Last column with data       : ", icon.last_col) +
         report_line("First row with data         : ", icon.first_row) +
         report_line("Last row with data          : ", icon.last_row) + "\r" +
         report_line("Icon-number in shp-file     : ",
                     std::int64_t{tool_state.series_first_icon} - 1 + Index) +
         report_line("SHP-Startpos in Ostrane.dat : ", entry.offset) + "\r" +
         "Click >HERE< to make this message disappear...";
}

}  // namespace

void show_icon_report(std::int32_t Index) {
  const std::int32_t selected = Form1.List1.ListIndex();
  if (selected < 0 || Index < 1 || Index > max_slots) return;
  const dat_record& entry = tool_state.dat_index[static_cast<std::size_t>(selected)];
  if (kind_of_entry(name_with_blanks(entry.name)) != entry_kind::icons) return;
  show_report("Icon-data for picture number: " + sign_column_text(Index) + ", on this screen.",
              icon_report(Index, entry));
}

}  // namespace ostrane
