#include "data/row_packer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "data/picture.h"
#include "random_icons.h"

namespace ostrane {
namespace {

using row = std::vector<std::int16_t>;

// The bytes of the shortest stream for the columns from `at` on, of all that there are, if it has
// less than `bound`. The first `outside` columns are free.
int shortest(const row& cells, int outside, int at, int bound) {
  if (at == outside + static_cast<int>(cells.size())) return 1;
  const auto cell = [&](int column) { return cells[static_cast<std::size_t>(column - outside)]; };
  int best = bound;
  bool is_unset = true;
  bool is_set = true;
  bool is_one = true;
  int colour = picture::unset;
  for (int end = at + 1; end <= outside + static_cast<int>(cells.size()); ++end) {
    if (end - 1 >= outside) {
      const int last = cell(end - 1);
      is_unset = is_unset && last == picture::unset;
      is_set = is_set && last != picture::unset;
      is_one = is_one && (colour == picture::unset || colour == last);
      if (colour == picture::unset) colour = last;
    }
    if (!is_unset && !is_set) break;
    const int bytes = is_unset || is_one ? 2 : 1 + end - at;
    const int literal = is_set ? std::min(bytes, 1 + end - at) : bytes;
    if (literal < best)
      best = std::min(best, literal + shortest(cells, outside, end, best - literal));
  }
  return best;
}

TEST(row_packer_test, PacksAsShortAsAnyStream) {
  const char* asked = std::getenv("OSTRANE_ROWS");
  random_icons random(7);
  row_packer packer;
  for (int left = asked == nullptr ? 1000 : std::atoi(asked); left > 0; --left) {
    row cells(static_cast<std::size_t>(random.number(1, 12)));
    const int colours = random.number(1, 4);
    for (auto& cell : cells) cell = static_cast<std::int16_t>(random.number(-1, colours - 1));
    const int outside = std::max(0, random.number(-6, 4));
    std::string stream;
    packer.pack(outside, cells, stream);
    while (!cells.empty() && cells.back() == picture::unset) cells.pop_back();
    const int wanted = cells.empty() ? 1 : shortest(cells, outside, 0, 1000);
    ASSERT_EQ(static_cast<int>(stream.size()), wanted) << testing::PrintToString(cells) << outside;
  }
}

// Lengths beyond those of single operations, and a way to the picture that many skips lead.
TEST(row_packer_test, PacksLongRowsAsShortAsTheyGo) {
  struct sample {
    int outside;
    row cells;
    std::size_t bytes;
  };
  row mixed(300);
  for (std::size_t i = 0; i < mixed.size(); ++i) mixed[i] = static_cast<std::int16_t>(i % 256);
  row distant(600, picture::unset);
  distant.back() = 9;
  const std::vector<sample> samples = {
      {0, row(127, 5), 3}, {0, row(128, 5), 5},   {0, mixed, 304}, {0, distant, 9},
      {0, {}, 1},          {126, {5}, 3},         {127, {5}, 5},   {510, {5}, 7},
      {700, {5, 6}, 10},   {2000000, {5}, 15689},
  };
  for (const sample& tried : samples) {
    std::string stream;
    row_packer().pack(tried.outside, tried.cells, stream);
    EXPECT_EQ(stream.size(), tried.bytes) << tried.outside << " and " << tried.cells.size();
  }
}

}  // namespace
}  // namespace ostrane
