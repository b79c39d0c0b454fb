#include "icons/shp_reader.h"

#include <algorithm>
#include <array>

#include "archive/entry_bounds.h"
#include "files/text.h"
#include "forms/form1.h"
#include "forms_layer/message_box.h"
#include "state/files.h"
#include "state/sign_column_text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

std::string selected_name() {
  return std::string(files::trimmed(Form1.List1.List(Form1.List1.ListIndex())));
}

void cut_icon_count() {
  if (tool_state.shp_head.icon_count <= max_icons_per_file) return;
  forms_layer::message_box("The file: " + selected_name() + " says that it holds" +
                           sign_column_text(tool_state.shp_head.icon_count) +
                           " pictures. Only the first" + sign_column_text(max_icons_per_file) +
                           " are displayed.");
  tool_state.shp_head.icon_count = max_icons_per_file;
}

bool read_head(std::int32_t offset) {
  std::array<std::byte, shp_head_size> bytes;
  if (offset >= 0) file_1.seek(offset);
  if (offset < 0 || file_1.read(bytes) < bytes.size()) return false;
  tool_state.shp_head = decode_shp_head(bytes);
  return true;
}

void report_invalid_address(std::int64_t icon_position) {
  forms_layer::message_box("The adress of the file: " + selected_name() +
                           " is invalid. Start offset for the shp-file is: " +
                           sign_column_text(icon_position) + ", the picture is not displayed.");
}

// Far more bytes than a picture has use for. Without such a bound a small directory that names one
// long stream again and again would keep the tool busy for minutes.
constexpr std::int64_t max_bytes_per_pixel = 16;
constexpr std::int64_t max_bytes_besides = 65536;

std::int64_t max_stream_bytes(const icon_head& head) {
  const std::int64_t rows = std::max(head.no_of_rows + 1, 1);
  const std::int64_t columns = std::max(head.no_of_cols + 1, 1);
  return max_bytes_per_pixel * rows * columns + max_bytes_besides;
}

}  // namespace

void report_refused_icon(bool is_last) {
  const icon_head& head = tool_state.icon_header;
  forms_layer::message_box(
      "Something is rotten in the state of Denmark - fileformat has errors, icon is not "
      "displayed. \nNo-of-rows = " +
      sign_column_text(head.no_of_rows) + "\nRow-start = " + sign_column_text(head.row_start) +
      "\nRow-end = " + sign_column_text(head.row_end) + "\nNo-of-cols = " +
      sign_column_text(head.no_of_cols) + "\nCol-start = " + sign_column_text(head.col_start) +
      "\nCol-end = " + sign_column_text(head.col_end) +
      (is_last ? "\nFurther icons of this series are refused without a message." : ""));
}

void read_directory() {
  const std::int32_t offset = entry_start(tool_state.selected_index);
  tool_state.directory_index = tool_state.selected_index;
  tool_state.shp_head = {};
  if (!read_head(offset)) {
    report_invalid_address(std::int64_t{offset} + 1);
    tool_state.directory_read = flag_true;
    return;
  }
  cut_icon_count();
  std::array<std::byte, shp_dir_entry_size> bytes;
  for (std::int32_t n = 1; n <= tool_state.shp_head.icon_count; ++n) {
    const bool there = file_1.read(bytes) == bytes.size();
    if (there) tool_state.dir_entry = decode_shp_dir_entry(bytes);
    // Position 0 has no byte in the file, so an icon without a directory entry stops the series.
    tool_state.icon_positions[static_cast<std::size_t>(n)] =
        there ? in_32_bits(std::int64_t{offset} + tool_state.dir_entry.icon_offset + 1) : 0;
  }
  tool_state.directory_read = flag_true;
}

void read_icon_head() {
  const std::int32_t position =
      tool_state.icon_positions[static_cast<std::size_t>(tool_state.icon_number)];
  std::array<std::byte, icon_head_size> bytes;
  if (position > 0) file_1.seek(position - 1);
  if (position <= 0 || file_1.read(bytes) < bytes.size()) {
    report_invalid_address(position);
    tool_state.series_full = flag_true;
    return;
  }
  tool_state.icon_header = decode_icon_head(bytes);
  const std::int64_t to_end_of_entry =
      std::int64_t{entry_end(tool_state.directory_index)} - position;
  tool_state.entry_bytes_left =
      in_32_bits(std::min(to_end_of_entry, max_stream_bytes(tool_state.icon_header)));
  tool_state.read_buffer_fill = 0;
  tool_state.read_buffer_pos = 0;
}

}  // namespace ostrane
