#include "data/new_icon.h"

#include <algorithm>

#include "data/data_error.h"
#include "data/shp_reader.h"

namespace ostrane {

namespace {

constexpr std::int64_t max_skip = 255;
constexpr std::int64_t skip_bytes = 2;

// The smallest box that contains the known one and all set cells.
void widen(icon_head& head, const icon_head& smallest, std::int32_t last_column) {
  if (head.row_start > head.row_end) {
    head.row_start = smallest.row_start;
    head.row_end = smallest.row_end;
  }
  head.row_start = std::min(head.row_start, smallest.row_start);
  head.row_end = std::max(head.row_end, smallest.row_end);
  head.col_start = std::min(head.col_start, smallest.col_start);
  if (smallest.col_end > std::max(head.col_end, last_column)) head.col_end = smallest.col_end;
}

// The bytes of a stream besides those of its cells: the row ends, and in each row with cells the
// skips to column 0.
std::int64_t bytes_before_cells(const icon_head& head, const icon_head& smallest, bool is_set) {
  const std::int64_t skips = std::max<std::int64_t>(-std::int64_t{head.col_start}, 0) / max_skip;
  const std::int64_t rows = is_set ? std::int64_t{smallest.row_end} - smallest.row_start + 1 : 0;
  return std::int64_t{head.row_end} - head.row_start + 1 + skips * skip_bytes * rows;
}

}  // namespace

shp_icon new_icon(const picture& drawn, const std::optional<known_icon>& known) {
  const icon_head smallest = head_of(drawn);
  const bool is_kept = known && known->head.no_of_rows == smallest.no_of_rows &&
                       known->head.no_of_cols == smallest.no_of_cols &&
                       classify_icon(known->head) == icon_kind::drawable;
  if (!is_kept) {
    icon_head head = smallest;
    if (known) head.spare = known->head.spare;
    return {head, packed(drawn, head)};
  }
  icon_head head = known->head;
  const bool is_set = last_set_column(drawn) >= 0;
  if (is_set) widen(head, smallest, known->last_column);
  if (bytes_before_cells(head, smallest, is_set) > max_stream_bytes(head)) {
    if (!is_set) return {head, ""};  // a decoder stops before the first cell
    throw data_error("its box begins too far outside the picture");
  }
  return {head, packed(drawn, head)};
}

}  // namespace ostrane
