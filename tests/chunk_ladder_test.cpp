#include "archive/chunk_ladder.h"

#include "recording_screen.h"

namespace ostrane {
namespace {

constexpr std::int32_t block_sizes[] = {8192, 1024, 128, 8, 1};

struct amount_case {
  std::int32_t amount;
  std::int32_t blocks[5];       // of 8192, 1024, 128, 8 and 1 bytes
  std::vector<float> bar = {};  // its values, if no small bytes were counted before
};

const amount_case amounts[] = {
    {0, {0, 0, 0, 0, 0}},
    {1, {0, 0, 0, 0, 1}},
    {8, {0, 0, 0, 0, 8}},
    {9, {0, 0, 0, 1, 1}},
    {16, {0, 0, 0, 2, 0}},
    {128, {0, 0, 0, 16, 0}},
    {129, {0, 0, 1, 0, 1}},
    {1023, {0, 0, 7, 15, 7}},
    {1024, {0, 0, 8, 0, 0}},
    {1025, {0, 1, 0, 0, 1}, {1024}},
    {8191, {0, 7, 7, 15, 7}, {1024, 2048, 3072, 4096, 5120, 6144, 7168}},
    {8192, {0, 8, 0, 0, 0}, {1024, 2048, 3072, 4096, 5120, 6144, 7168, 8192}},
    {8193, {1, 0, 0, 0, 1}, {8192}},
    {16384, {2, 0, 0, 0, 0}, {8192, 16384}},
    {100000,
     {12, 1, 5, 4, 0},
     {8192, 16384, 24576, 32768, 40960, 49152, 57344, 65536, 73728, 81920, 90112, 98304, 1024}},
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

class chunk_ladder_test : public tool_test {
 protected:
  // Copies from behind the first 3 bytes of a file to behind those of another.
  std::int32_t copy(std::int32_t amount, std::int16_t& small) {
    screen.begin_bars();
    platform::binary_file source;
    platform::binary_file destination;
    source.open_to_read("C:\\source");
    source.seek(3);
    destination.open_to_write("C:\\destination");
    destination.write(std::as_bytes(std::span("abc", 3)));
    const std::int32_t copied = chunk_ladder(source, destination, amount, small);
    destination.close();
    next_byte.resize(1);
    next_byte.resize(source.read(std::as_writable_bytes(std::span(next_byte))));
    return copied;
  }

  recording_screen screen;
  std::string next_byte;  // what the source stands at behind the copy
};

// Which blocks are taken shows in the values of the bar, from every count of small bytes.
TEST_F(chunk_ladder_test, TakesTheBlocksOfEachAmount) {
  const std::string bytes = some_bytes(100100);
  write("C:\\source", bytes);
  for (const amount_case& c : amounts) {
    std::int16_t unmoved = 0;
    EXPECT_EQ(bar_values(c, unmoved), c.bar) << c.amount;
    for (std::int16_t start = 1024; start >= 0; start = static_cast<std::int16_t>(start - 32)) {
      std::int16_t small = start;
      std::int16_t small_expected = start;
      std::filesystem::remove(place("C:\\destination"));
      const auto amount = static_cast<std::size_t>(c.amount);
      ASSERT_EQ(copy(c.amount, small), c.amount);
      ASSERT_EQ(screen.values_1, bar_values(c, small_expected)) << c.amount << " " << start;
      ASSERT_EQ(small, small_expected) << c.amount << " " << start;
      ASSERT_EQ(read("C:\\destination"), "abc" + bytes.substr(3, amount));
      ASSERT_EQ(next_byte, bytes.substr(3 + amount, 1));
    }
  }
}

TEST_F(chunk_ladder_test, CarriesSmallBytesFromCopyToCopy) {
  write("C:\\source", some_bytes(1000));
  std::int16_t small = 0;
  copy(700, small);
  EXPECT_EQ(small, 700);
  EXPECT_EQ(screen.values_1, std::vector<float>{});
  copy(700, small);
  EXPECT_EQ(small, 316);
  EXPECT_EQ(screen.values_1, std::vector<float>{384});
}

TEST_F(chunk_ladder_test, CopiesWhatAShortSourceHasAndNothingForAnAmountBelow0) {
  for (const std::size_t there : {0, 1, 1030, 8192, 50001}) {
    write("C:\\source", some_bytes(there + 3));
    std::int16_t small = 0;
    std::filesystem::remove(place("C:\\destination"));
    EXPECT_EQ(copy(100000, small), there);
    EXPECT_EQ(read("C:\\destination"), "abc" + some_bytes(there + 3).substr(3));
    EXPECT_EQ(screen.values_1.size(), there / 8192 + 1);  // no block behind the one cut short
  }
  for (const std::int32_t amount : {-1, -8193, INT32_MIN}) {
    std::int16_t small = 1024;
    std::filesystem::remove(place("C:\\destination"));
    EXPECT_EQ(copy(amount, small), 0);
    EXPECT_EQ(screen.values_1, std::vector<float>{});
    EXPECT_EQ(small, 1024);
    EXPECT_EQ(read("C:\\destination"), "abc");
  }
}

}  // namespace
}  // namespace ostrane
