#include "archive/chunk_ladder.h"

#include "recording_screen.h"

namespace ostrane {
namespace {

constexpr std::int32_t block_sizes[] = {8192, 1024, 128, 8, 1};

const struct amount_case {
  std::int32_t amount;
  std::int32_t blocks[5];  // of these sizes
} amounts[] = {
    {INT32_MIN, {0, 0, 0, 0, 0}}, {-8193, {0, 0, 0, 0, 0}}, {-1, {0, 0, 0, 0, 0}},
    {0, {0, 0, 0, 0, 0}},         {1, {0, 0, 0, 0, 1}},     {8, {0, 0, 0, 0, 8}},
    {9, {0, 0, 0, 1, 1}},         {16, {0, 0, 0, 2, 0}},    {128, {0, 0, 0, 16, 0}},
    {129, {0, 0, 1, 0, 1}},       {1023, {0, 0, 7, 15, 7}}, {1024, {0, 0, 8, 0, 0}},
    {1025, {0, 1, 0, 0, 1}},      {8191, {0, 7, 7, 15, 7}}, {8192, {0, 8, 0, 0, 0}},
    {8193, {1, 0, 0, 0, 1}},      {16384, {2, 0, 0, 0, 0}}, {100000, {12, 1, 5, 4, 0}},
};

// The values that the blocks of a case give the bar, and the small bytes that are left counted.
std::vector<float> bar_values(const amount_case& c, std::int16_t& small) {
  std::vector<float> values;
  for (std::size_t rung = 0; rung < 5; ++rung) {
    const std::int32_t size = block_sizes[rung];
    for (std::int32_t i = 1; i <= c.blocks[rung]; ++i) {
      if (rung > 1) small = static_cast<std::int16_t>(small + size);
      if (rung > 1 && small <= 1024) continue;
      values.push_back(static_cast<float>(i * size));
      if (rung > 1) small = 0;
    }
  }
  return values;
}

using chunk_ladder_test = tool_test;

// Copies from behind the first 3 bytes of a file to behind those of another. Which blocks are taken
// shows in the values of the bar, from every count of small bytes.
TEST_F(chunk_ladder_test, TakesTheBlocksOfEachAmount) {
  recording_screen screen;
  const std::string bytes = some_bytes(100100);
  write("C:\\source", bytes);
  for (const amount_case& c : amounts) {
    const std::int32_t copied = std::max(c.amount, 0);
    for (int start = 1024; start >= 0; start -= 32) {
      auto small = static_cast<std::int16_t>(start);
      std::int16_t small_expected = small;
      screen.begin_bars();
      std::filesystem::remove(place("C:\\destination"));
      platform::binary_file source;
      platform::binary_file destination;
      source.open_to_read("C:\\source");
      source.seek(3);
      destination.open_to_write("C:\\destination");
      destination.write(std::as_bytes(std::span("abc", 3)));
      ASSERT_EQ(chunk_ladder(source, destination, c.amount, small), copied);
      destination.close();
      ASSERT_EQ(screen.values_1, bar_values(c, small_expected)) << c.amount << " " << start;
      ASSERT_EQ(small, small_expected) << c.amount << " " << start;
      ASSERT_EQ(read("C:\\destination"), "abc" + bytes.substr(3, static_cast<std::size_t>(copied)));
    }
  }
}

TEST_F(chunk_ladder_test, StopsWhereAShortSourceEnds) {
  for (const std::size_t there : {0U, 1U, 1030U, 8192U, 50001U}) {
    recording_screen screen;
    write("C:\\source", some_bytes(there));
    platform::binary_file source;
    platform::binary_file destination;
    source.open_to_read("C:\\source");
    destination.open_to_write("C:\\destination");
    std::int16_t small = 0;
    screen.begin_bars();
    EXPECT_EQ(chunk_ladder(source, destination, 100000, small), there);
    EXPECT_EQ(screen.values_1.size(), there / 8192 + 1);  // no block behind the one cut short
  }
}

}  // namespace
}  // namespace ostrane
