#include "icons/series_reader.h"

#include <algorithm>
#include <span>

#include "data/entry_range.h"
#include "data/number_text.h"
#include "data/shp_reader.h"
#include "files/text.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "state/open_archive.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

std::string selected_name() {
  return std::string(files::trimmed(Form1.List1.List(Form1.List1.ListIndex())));
}

void report_too_many_icons() {
  forms_layer::message_box("The file: " + selected_name() + " says that it holds" +
                           sign_column_text(tool_state.shp_head.icon_count) +
                           " pictures. Only the first" + sign_column_text(max_icons_per_file) +
                           " are displayed.");
}

void report_invalid_address(std::int64_t icon_position) {
  forms_layer::message_box("The adress of the file: " + selected_name() +
                           " is invalid. Start offset for the shp-file is: " +
                           sign_column_text(icon_position) + ", the picture is not displayed.");
}

}  // namespace

std::string refused_icon_text() {
  const icon_head& head = tool_state.icon_header;
  return "Something is rotten in the state of Denmark - fileformat has errors, icon is not "
         "displayed. \nNo-of-rows = " +
         sign_column_text(head.no_of_rows) + "\nRow-start = " + sign_column_text(head.row_start) +
         "\nRow-end = " + sign_column_text(head.row_end) +
         "\nNo-of-cols = " + sign_column_text(head.no_of_cols) +
         "\nCol-start = " + sign_column_text(head.col_start) +
         "\nCol-end = " + sign_column_text(head.col_end);
}

void read_directory() {
  const std::int32_t offset = range_of(index_records(), tool_state.selected_index).start;
  tool_state.directory_index = tool_state.selected_index;
  tool_state.shp_head = {};
  if (!read_shp_head(tool_state.archive_file, offset, tool_state.shp_head)) {
    return report_invalid_address(std::int64_t{offset} + 1);
  }
  if (tool_state.shp_head.icon_count > max_icons_per_file) {
    report_too_many_icons();
    tool_state.shp_head.icon_count = max_icons_per_file;
  }
  const auto count = static_cast<std::size_t>(std::max(tool_state.shp_head.icon_count, 0));
  read_icon_positions(tool_state.archive_file, offset,
                      std::span(tool_state.icon_positions).subspan(1, count));
  tool_state.directory_read = flag_true;
}

bool begin_current_icon() {
  const std::int32_t position =
      tool_state.icon_positions[static_cast<std::size_t>(tool_state.icon_number)];
  if (!read_icon_head(tool_state.archive_file, position, tool_state.icon_header)) {
    report_invalid_address(position);
    return false;
  }
  begin_stream(tool_state.stream,
               stream_size(tool_state.icon_header, position,
                           range_of(index_records(), tool_state.directory_index).end));
  return true;
}

}  // namespace ostrane
