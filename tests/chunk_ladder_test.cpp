#include "archive/chunk_ladder.h"

#include "recording_screen.h"

namespace ostrane {
namespace {

struct amount_case {
  std::int32_t amount;
  std::int32_t blocks[5];  // of 8192, 1024, 128, 8 and 1
};

// The values that the blocks of a case give the bar, and the small bytes that are left counted.
std::vector<float> bar_values(const amount_case& c, std::int16_t& small) {
  std::vector<float> values;
  std::size_t rung = 0;
  for (const int size : {8192, 1024, 128, 8, 1}) {
    for (std::int32_t i = 1; i <= c.blocks[rung]; ++i) {
      if (size < 1024) small = static_cast<std::int16_t>(small + size);
      if (size < 1024 && small <= 1024) continue;
      values.push_back(static_cast<float>(i * size));
      if (size < 1024) small = 0;
    }
    ++rung;
  }
  return values;
}

using chunk_ladder_test = tool_test;

// Copies from behind the first 3 bytes of a file to behind those of another. Which blocks are taken
// shows in the values of the bar, from every count of small bytes. The source has 90000 bytes.
TEST_F(chunk_ladder_test, TakesTheBlocksOfEachAmountUpToTheEndOfTheSource) {
  const amount_case cases[] = {
      {INT32_MIN, {0, 0, 0, 0, 0}},  {-1, {0, 0, 0, 0, 0}},    {0, {0, 0, 0, 0, 0}},
      {1, {0, 0, 0, 0, 1}},          {8, {0, 0, 0, 0, 8}},     {9, {0, 0, 0, 1, 1}},
      {128, {0, 0, 0, 16, 0}},       {129, {0, 0, 1, 0, 1}},   {1024, {0, 0, 8, 0, 0}},
      {1025, {0, 1, 0, 0, 1}},       {8191, {0, 7, 7, 15, 7}}, {8192, {0, 8, 0, 0, 0}},
      {8193, {1, 0, 0, 0, 1}},       {16384, {2, 0, 0, 0, 0}}, {90000, {10, 7, 7, 2, 0}},
      {INT32_MAX, {11, 0, 0, 0, 0}},
  };
  recording_screen screen;
  const std::string bytes = some_bytes(90003);
  write("C:\\source", bytes);
  for (const amount_case& c : cases) {
    const std::int32_t copied = std::clamp(c.amount, 0, 90000);
    for (int start = 1024; start >= 0; start -= 32) {
      SCOPED_TRACE(testing::Message() << c.amount << " from " << start);
      auto small = static_cast<std::int16_t>(start);
      std::int16_t small_expected = small;
      screen.begin_bars();
      platform::binary_file source;
      platform::binary_file destination;
      source.open_to_read("C:\\source");
      source.seek(3);
      destination.open_to_write("C:\\destination");
      destination.write(std::as_bytes(std::span("abc", 3)));
      ASSERT_EQ(chunk_ladder(source, destination, c.amount, small), copied);
      destination.close();
      ASSERT_EQ(screen.values_1, bar_values(c, small_expected));
      ASSERT_EQ(small, small_expected);
      ASSERT_EQ(read("C:\\destination"), "abc" + bytes.substr(3, static_cast<std::size_t>(copied)));
    }
  }
}

}  // namespace
}  // namespace ostrane
