#include "data/row_packer.h"

#include <algorithm>

#include "data/picture.h"

namespace ostrane {

namespace {

constexpr std::int32_t max_skip = 255;
constexpr std::int32_t max_op_pixels = 127;
// A column outside the picture, which any operation may paint.
constexpr std::int16_t free_cell = -2;

// If there are more outside columns, the stream begins with skips of maximum length until at most
// this many remain.
constexpr std::int32_t max_outside = 2 * max_skip;

struct open_literal {
  std::int32_t columns;
  std::int32_t bytes;  // of the stream that ends in it
};

// A full literal, which cannot grow.
constexpr open_literal no_literal = {.columns = max_op_pixels, .bytes = 0};

// Adds a column to the literal or begins a new one, whichever is shorter. `bytes_before` is the
// size of the shortest stream for the columns before.
open_literal extended(const open_literal& literal, std::int32_t bytes_before) {
  const std::int32_t new_bytes = bytes_before + 2;
  if (literal.columns == max_op_pixels || literal.bytes + 1 >= new_bytes) return {1, new_bytes};
  return {literal.columns + 1, literal.bytes + 1};
}

}  // namespace

void row_packer::pack(std::int64_t outside, std::span<const std::int16_t> cells,
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

// Dynamic programming. best[c] is the size of the shortest stream for the first c columns, the
// minimum over the operation that ends it:
//   skip or run of n columns:  best[c - n] + 2
//   literal:                   literal[c] = min(literal[c - 1] + 1, best[c - 1] + 2)
// best[c] never decreases with c, so n is the largest number of columns that end here and that one
// skip or one run can cover. Where both are possible, a skip covers all that a run can.
//
// One open literal is enough. A literal that is a byte shorter is never worse than a longer one, as
// a new literal costs that byte. If both are equal, the new one can grow further.
void row_packer::find_steps() {
  steps_.resize(columns_.size() + 1);
  step* const best = steps_.data();
  best[0] = {.bytes = 0, .kind = op_kind::skip, .columns = 0};
  std::int32_t skip = 0;  // columns that end here and that skips can cover
  std::int32_t run = 0;   // columns that end here and that runs of one colour can cover
  open_literal literal = no_literal;
  std::int16_t before = free_cell;
  std::int32_t c = 0;
  for (const std::int16_t cell : columns_) {
    const bool can_skip = cell < 0;
    const bool can_paint = cell != picture::unset;
    const bool continues_run = before == free_cell || cell == before;
    skip = can_skip ? skip + 1 : 0;
    run = !can_paint ? 0 : continues_run ? run + 1 : 1;
    literal = can_paint ? extended(literal, best[c].bytes) : no_literal;
    const std::int32_t n = can_skip ? std::min(skip, max_skip) : std::min(run, max_op_pixels);
    ++c;
    best[c] = {.bytes = best[c - n].bytes + 2,
               .kind = can_skip ? op_kind::skip : op_kind::run,
               .columns = static_cast<std::uint8_t>(n)};
    if (can_paint && literal.bytes < best[c].bytes) {
      best[c] = {literal.bytes, op_kind::literal, static_cast<std::uint8_t>(literal.columns)};
    }
    before = cell;
  }
}

void row_packer::append_ops(std::string& stream) const {
  std::size_t end = columns_.size();
  stream.resize(stream.size() + static_cast<std::size_t>(steps_[end].bytes));
  auto to = stream.rbegin();
  while (end > 0) {
    const step& op = steps_[end];
    const auto last = columns_.rend() - static_cast<std::ptrdiff_t>(end);
    end -= op.columns;
    if (op.kind == op_kind::skip) {
      *to++ = static_cast<char>(op.columns);
      *to++ = '\1';
    } else if (op.kind == op_kind::run) {
      *to++ = static_cast<char>(*last);
      *to++ = static_cast<char>(2 * op.columns);
    } else {
      to = std::transform(last, last + op.columns, to, [](std::int16_t cell) {
        return static_cast<char>(std::max<std::int16_t>(cell, 0));
      });
      *to++ = static_cast<char>(2 * op.columns + 1);
    }
  }
}

}  // namespace ostrane
