#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ostrane {

// Encodes rows of a picture as the stream of icon_decoder.h. Reuses its buffers between rows.
class row_packer {
 public:
  // Appends the shortest stream that sets exactly these cells, and the end of row. The stream
  // begins `outside` columns left of the first cell, where painting has no effect.
  void pack(std::int64_t outside, std::span<const std::int16_t> cells, std::string& stream);

 private:
  enum class op_kind : std::uint8_t { skip, run, literal };
  // The last operation of the shortest stream for the columns up to here.
  struct step {
    std::int32_t bytes;  // of the whole stream
    op_kind kind;
    std::uint8_t columns;  // of the operation
  };
  void find_steps();
  // Fills the stream from its end, as each step tells the one before.
  void append_ops(std::string& stream) const;

  std::vector<std::int16_t> columns_;  // cells, preceded by a `free_cell` per outside column
  std::vector<step> steps_;
};

}  // namespace ostrane
