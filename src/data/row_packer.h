#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ostrane {

// Packs rows of a picture as icon_decoder.h reads them. Keeps its memory from row to row.
class row_packer {
 public:
  // Appends the shortest stream that sets exactly these cells, and the end of the row. The stream
  // begins `outside` columns left of the first cell; what it paints there is lost.
  void pack(std::int32_t outside, std::span<const std::int16_t> cells, std::string& stream);

 private:
  enum class op_kind : std::uint8_t { skip, run, literal };
  // The last operation of the shortest stream for all columns up to here, and its columns.
  struct step {
    std::int32_t bytes;  // of the whole stream
    op_kind kind;
    std::uint8_t columns;
  };
  void find_steps();
  void append_ops(std::string& stream);

  std::vector<std::int16_t> columns_;  // cells, and `free_cell` for those outside
  std::vector<step> steps_;
  std::vector<step> way_;
};

}  // namespace ostrane
