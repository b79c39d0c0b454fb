#include "data/row_packer.h"

#include <algorithm>
#include <iterator>

#include "data/picture.h"

namespace ostrane {

namespace {

constexpr std::int32_t max_skip = 255;
constexpr std::int32_t max_op_pixels = 127;
// A column outside the picture, which any operation may paint.
constexpr std::int16_t free_cell = -2;

// For more outside columns the stream begins with skips of maximum length until at most this many
// remain.
constexpr std::int32_t max_outside = 2 * max_skip;

}  // namespace

void row_packer::pack(std::int32_t outside, std::span<const std::int16_t> cells,
                      std::string& stream) {
  while (!cells.empty() && cells.back() == picture::unset) cells = cells.first(cells.size() - 1);
  if (!cells.empty()) {
    for (; outside > max_outside; outside -= max_skip) stream += "\1\xFF";
    columns_.assign(static_cast<std::size_t>(outside), free_cell);
    columns_.insert(columns_.end(), cells.begin(), cells.end());
    find_steps();
    append_ops(stream);
  }
  stream += '\0';
}

// Dynamic programming in one pass: each step depends only on a few values of the columns before it.
// The shortest stream never gets shorter from one column to the next, so the longest skip and the
// longest run are the best ones. Only one open literal is kept: one that is a byte shorter is never
// worse, because restarting a literal costs at most that byte. Of equal literals the one with fewer
// columns can be extended further.
void row_packer::find_steps() {
  steps_.resize(columns_.size() + 1);
  step* to = steps_.data();  // step before the current column; its result goes to the next one
  *to = {.bytes = 0, .kind = op_kind::skip, .columns = 0};
  std::int32_t skip = 0;
  std::int32_t run = 0;
  std::int32_t literal = max_op_pixels;  // columns of the open literal; a full one cannot grow
  std::int32_t literal_bytes = 0;        // of the stream that ends in it
  std::int16_t before = free_cell;
  for (const std::int16_t cell : columns_) {
    const bool can_skip = cell < 0;
    const bool can_paint = cell != picture::unset;
    run = !can_paint ? 0 : before == free_cell || cell == before ? run + 1 : 1;
    skip = can_skip ? skip + 1 : 0;
    if (!can_paint) {
      literal = max_op_pixels;
    } else if (literal == max_op_pixels || literal_bytes + 1 >= to->bytes + 2) {
      literal = 1;
      literal_bytes = to->bytes + 2;
    } else {
      ++literal;
      ++literal_bytes;
    }
    const op_kind kind = can_skip ? op_kind::skip : op_kind::run;
    const std::int32_t columns = can_skip ? std::min(skip, max_skip) : std::min(run, max_op_pixels);
    step best = {to[1 - columns].bytes + 2, kind, static_cast<std::uint8_t>(columns)};
    if (can_paint && literal_bytes < best.bytes) {
      best = {literal_bytes, op_kind::literal, static_cast<std::uint8_t>(literal)};
    }
    *++to = best;
    before = cell;
  }
}

void row_packer::append_ops(std::string& stream) {
  ops_.clear();
  for (std::size_t end = columns_.size(); end > 0; end -= ops_.back().columns) {
    ops_.push_back(steps_[end]);
  }
  std::reverse(ops_.begin(), ops_.end());
  std::size_t at = 0;
  for (const step& op : ops_) {
    if (op.kind == op_kind::skip) {
      stream += '\1';
      stream += static_cast<char>(op.columns);
    } else if (op.kind == op_kind::run) {
      stream += static_cast<char>(2 * op.columns);
      stream += static_cast<char>(columns_[at + op.columns - 1]);
    } else {
      stream += static_cast<char>(2 * op.columns + 1);
      const auto first = columns_.begin() + static_cast<std::ptrdiff_t>(at);
      std::transform(first, first + op.columns, std::back_inserter(stream), [](std::int16_t cell) {
        return static_cast<char>(std::max<std::int16_t>(cell, 0));
      });
    }
    at += op.columns;
  }
}

}  // namespace ostrane
