#pragma once

#include <random>
#include <string>

#include "data/icon_packer.h"

namespace ostrane {

// Icons of all codings: runs, literals and skips of any length that may leave box and picture, rows
// without cells, boxes that begin far outside, streams that run short, all 256 indices.
class random_icons {
 public:
  explicit random_icons(unsigned seed) : random_(seed) {}

  bool makes_full_icons = true;   // with all 256 indices
  bool has_short_stream = false;  // one that reads on in what follows its icon

  int number(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }

  shp_icon next() {
    icon_head head;
    head.no_of_rows = static_cast<std::int16_t>(number(0, number(0, 40)));
    head.no_of_cols = static_cast<std::int16_t>(number(0, number(0, 600)));
    head.col_start = edge(head.no_of_cols);
    head.row_start = edge(head.no_of_rows);
    head.col_end = edge(head.no_of_cols);
    head.row_end = std::max(edge(head.no_of_rows), number(0, 9) == 0 ? -5 : head.row_start);
    head.spare = number(-9, 9);
    if (number(0, 20) == 0) head.col_end += 1;
    if (makes_full_icons && number(0, 9) == 0) return full_icon();
    return {head, stream(head)};
  }

 private:
  std::int32_t edge(int highest) {
    const int choice = number(0, 9);
    if (choice == 0) return -number(0, 3);
    if (choice == 1) return -number(0, 2000);
    return choice < 6 ? 0 : number(0, highest);
  }

  std::string stream(const icon_head& head) {
    std::string bytes;
    for (int row = head.row_start; row <= head.row_end; ++row) {
      for (int ops = number(0, 6); ops > 0; --ops) {
        const int op = number(0, 3) == 0 ? 1 : number(1, number(0, 3) == 0 ? 255 : 20);
        bytes += static_cast<char>(op);
        const int operands = op == 1 || op % 2 == 0 ? 1 : op / 2;
        for (int i = 0; i < operands; ++i) bytes += static_cast<char>(number(0, 255));
      }
      bytes += '\0';
    }
    if (number(0, 30) == 0) {
      bytes.resize(bytes.size() / 2);
      has_short_stream = true;
    }
    return bytes;
  }

  shp_icon full_icon() {
    picture drawn(number(17, 30), 16);
    for (int i = 0; i < 256; ++i) drawn.set(i % 16, i / 16, static_cast<std::uint8_t>(i));
    return make_icon(drawn);
  }

  std::mt19937 random_;
};

}  // namespace ostrane
