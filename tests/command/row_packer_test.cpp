#include "data/row_packer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

#include "data/picture.h"
#include "random_icons.h"

using namespace ostrane;

using row = std::vector<std::int16_t>;

// The length of the shortest stream for the columns from `at` on, found by trying all, if it is
// below `bound`. The first `outside` columns may have any colour.
static int shortest(const row& cells, int outside, int at, int bound) {
  const int columns = outside + static_cast<int>(cells.size());
  if (at == columns) return 1;
  int best = bound;
  std::set<int> colours;  // of the operation from `at` on, without the free columns
  for (int end = at + 1; end <= columns; ++end) {
    if (end > outside) colours.insert(cells[static_cast<std::size_t>(end - 1 - outside)]);
    const bool has_unset = colours.contains(picture::unset);
    if (has_unset && colours.size() > 1) break;
    const int bytes = colours.size() <= 1 ? 2 : 1 + end - at;
    if (bytes < best) best = std::min(best, bytes + shortest(cells, outside, end, best - bytes));
  }
  return best;
}

TEST(row_packer_test, FindsTheShortestStream) {
  const char* wanted = std::getenv("OSTRANE_ROWS");
  random_icons random(7);
  row_packer packer;
  for (int left = wanted == nullptr ? 1000 : std::atoi(wanted); left > 0; --left) {
    row cells(static_cast<std::size_t>(random.number(1, 12)));
    const int colours = random.number(1, 4);
    for (auto& cell : cells) cell = static_cast<std::int16_t>(random.number(-1, colours - 1));
    const int outside = std::max(0, random.number(-6, 4));
    std::string stream;
    packer.pack(outside, cells, stream);
    while (!cells.empty() && cells.back() == picture::unset) cells.pop_back();
    const int expected = cells.empty() ? 1 : shortest(cells, outside, 0, 1000);
    ASSERT_EQ(static_cast<int>(stream.size()), expected)
        << testing::PrintToString(cells) << outside;
  }
}

// Rows longer than one operation, and boxes that begin many skips left of the picture.
TEST(row_packer_test, PacksLongRowsIntoTheShortestStream) {
  row mixed(300);
  for (std::size_t i = 0; i < mixed.size(); ++i) mixed[i] = static_cast<std::int16_t>(i % 256);
  row distant(600, picture::unset);
  distant.back() = 9;
  const std::tuple<int, row, std::size_t> cases[] = {
      {0, row(127, 5), 3}, {0, row(128, 5), 5},   {0, mixed, 304}, {0, distant, 9},
      {0, {}, 1},          {126, {5}, 3},         {127, {5}, 5},   {510, {5}, 7},
      {700, {5, 6}, 10},   {2000000, {5}, 15689},
  };
  for (const auto& [outside, cells, bytes] : cases) {
    std::string stream;
    row_packer().pack(outside, cells, stream);
    EXPECT_EQ(stream.size(), bytes) << outside << " and " << cells.size();
  }
}
