#include "data/icon_check.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "data/icon_decoder.h"
#include "data/icon_file.h"
#include "data/number_text.h"

namespace ostrane {

namespace {

// Streams may share bytes. This bounds the time that a malicious file can take.
constexpr std::int64_t max_reads_per_byte = 64;

using report_fault = std::function<void(const std::string&)>;

// Checks whether anything is painted outside the picture.
struct bounds_canvas {
  const icon_head& head;
  bool paints_outside = false;

  void check(std::int64_t column, std::int32_t row, std::int32_t count) {
    const bool inside =
        row >= 0 && row < rows_of(head) && column >= 0 && column + count <= columns_of(head);
    paints_outside = paints_outside || !inside;
  }
  void run(std::int32_t column, std::int32_t row, std::int32_t count, std::uint8_t /*index*/) {
    check(column, row, count);
  }
  void pixels(std::int32_t column, std::int32_t row, std::int32_t count, const std::byte*) {
    check(column, row, count);
  }
};

struct icon_file_check {
  files::binary_file& file;
  icon_stream& stream;
  const report_fault& report;
  icon_file icons;
  std::vector<std::int32_t> starts;  // of all icons and the end of the file, 0-based, ascending
  std::int64_t bytes_left_to_read = 0;
};

void check_head(const icon_file_check& check) {
  const icon_file& icons = check.icons;
  const std::int32_t count = icons.head.icon_count;
  if (std::int64_t{icons.end} - icons.start < std::int64_t{shp_head_size}) {
    check.report("it is too short for the head of an icon file");
  } else if (count < 0) {
    check.report("it gives " + std::to_string(count) + " as the number of its icons");
  } else if (count > max_icons_per_file) {
    check.report("it gives " + std::to_string(count) + " as the number of its icons; at most " +
                 std::to_string(max_icons_per_file) + " are read");
  } else if (icons.positions.size() < static_cast<std::size_t>(count)) {
    check.report("it gives " + std::to_string(count) +
                 " as the number of its icons; its directory has room for " +
                 std::to_string(icons.positions.size()));
  }
}

std::string range_text(const char* what, std::int32_t from, std::int32_t to, std::int32_t highest) {
  return std::string(what) + " " + std::to_string(from) + " to " + std::to_string(to) +
         " of 0 to " + std::to_string(highest);
}

// Returns the fault of an icon head, or "".
std::string head_fault(const icon_head& head) {
  const std::string numbers =
      ": " + range_text("rows", head.row_start, head.row_end, head.no_of_rows) + ", " +
      range_text("columns", head.col_start, head.col_end, head.no_of_cols);
  if (head.no_of_rows < 0 || head.no_of_cols < 0) return "its size is below 0" + numbers;
  if (classify_icon(head) == icon_kind::blank) return "its box begins beyond the picture" + numbers;
  if (classify_icon(head) == icon_kind::refused) return "its box ends beyond the picture" + numbers;
  if (head.row_start < 0 || head.col_start < 0) {
    return "its box begins before the picture" + numbers;
  }
  if (head.row_start > head.row_end || head.col_start > head.col_end) {
    return "its box ends before it begins" + numbers;
  }
  if (!has_picture(head)) return "its picture is too large" + numbers;
  return "";
}

// Decodes the stream at `at`, the current position of the file. Returns the number of its bytes.
std::int64_t decode_stream(icon_file_check& check, std::int64_t at, bounds_canvas& canvas) {
  const std::int64_t size = std::max<std::int64_t>(check.icons.end - at, 0);
  begin_stream(check.stream, static_cast<std::int32_t>(size));
  icon_decoder(check.stream, check.file, canvas.head, canvas).decode();
  return size - check.stream.entry_bytes_left - buffered_bytes(check.stream);
}

void check_stream(icon_file_check& check, const std::string& icon, const icon_head& head,
                  std::int64_t at) {
  bounds_canvas canvas{head};
  const std::int64_t used = decode_stream(check, at, canvas);
  check.bytes_left_to_read -= used;
  if (used > max_stream_bytes(head)) {
    check.report(icon + "only the first " + std::to_string(max_stream_bytes(head)) +
                 " bytes of its stream are read");
  }
  if (canvas.paints_outside) check.report(icon + "its stream paints outside the picture");
  if (check.stream.stream_ended) {
    check.report(icon + "its stream ends before row " + std::to_string(head.row_end));
    return;
  }
  const auto next = std::upper_bound(check.starts.begin(), check.starts.end(), at - 1);
  const std::int64_t left = *next - (at + used);
  if (left > 0) check.report(icon + "its stream leaves " + counted(left, "byte") + " unused");
  if (left < 0) {
    check.report(icon + "its stream reaches " + counted(-left, "byte") + " into the next icon");
  }
}

void check_icon(icon_file_check& check, std::size_t index) {
  const std::string icon = "icon " + std::to_string(index + 1) + ": ";
  const std::int64_t at = std::int64_t{check.icons.positions[index]} - 1;
  if (at < check.icons.start || at + std::int64_t{icon_head_size} > check.icons.end) {
    check.report(icon + "its offset " + std::to_string(at - check.icons.start) +
                 " is outside the entry");
    return;
  }
  icon_head head;
  read_icon_head(check.file, check.icons.positions[index], head);
  const std::string fault = head_fault(head);
  if (!fault.empty()) check.report(icon + fault);
  if (head.no_of_rows < 0 || head.no_of_cols < 0 || classify_icon(head) != icon_kind::drawable) {
    return;
  }
  check_stream(check, icon, head, at + std::int64_t{icon_head_size});
}

// Also true for a position at the end of the file.
bool points_into(const icon_file& icons, std::int32_t position) {
  return position > icons.start && position - 1 <= icons.end;
}

// The bounds of the streams: a stream ends at the next icon or at the end of the file.
std::vector<std::int32_t> starts_in(const icon_file& icons) {
  std::vector<std::int32_t> starts = {icons.end};
  for (const std::int32_t position : icons.positions) {
    if (points_into(icons, position)) starts.push_back(position - 1);
  }
  std::sort(starts.begin(), starts.end());
  return starts;
}

}  // namespace

void check_icon_file(files::binary_file& file, std::int32_t start, std::int32_t end,
                     icon_stream& stream, const report_fault& report) {
  icon_file_check check{file, stream, report, read_icon_file(file, start, end), {}};
  check_head(check);
  check.starts = starts_in(check.icons);
  check.bytes_left_to_read = max_reads_per_byte * (std::int64_t{end} - start);
  std::unordered_set<std::int32_t> checked;
  for (std::size_t i = 0; i < check.icons.positions.size(); ++i) {
    // Several directory entries may point to one icon.
    const std::int32_t position = check.icons.positions[i];
    if (points_into(check.icons, position) && !checked.insert(position).second) continue;
    if (check.bytes_left_to_read < 0) {
      report("its streams share too many bytes; from icon " + std::to_string(i + 1) +
             " on they were not checked");
      return;
    }
    check_icon(check, i);
  }
}

}  // namespace ostrane
