#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ostrane {

// Packs rows of a picture into the operations of icon_decoder.h. Reuses its memory between rows.
class row_packer {
 public:
  // Appends the shortest stream that sets exactly these cells, and the end of the row. The stream
  // begins `outside` columns left of the first cell; pixels there are clipped.
  void pack(std::int32_t outside, std::span<const std::int16_t> cells, std::string& stream);

 private:
  enum class op_kind : std::uint8_t { skip, run, literal };
  // The last operation of the shortest stream for the columns before this one.
  struct step {
    std::int32_t bytes;  // of the whole stream
    op_kind kind;
    std::uint8_t columns;
  };
  void find_steps();
  void append_ops(std::string& stream);

  std::vector<std::int16_t> columns_;  // cells, and `free_cell` outside the picture
  std::vector<step> steps_;
  std::vector<step> path_;
};

}  // namespace ostrane
