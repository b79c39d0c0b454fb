#include "lists/shiplist.h"

#include <algorithm>

#include "lists/compare_key.h"
#include "platform/file_error.h"
#include "platform/text_file.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::size_t most_lines = 32768;

struct place_in_order {
  std::uint64_t first_characters = 0;
  std::size_t line = 0;
};

// As a number, which is less where the characters are: most keys are told apart without a look at
// them.
std::uint64_t first_characters(const std::string& key) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < sizeof(number); ++i) {
    number = number << 8U | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  }
  return number;
}

}  // namespace

void read_shiplist(const std::string& path) {
  platform::text_reader reader(path);
  std::vector<std::string> lines;
  lines.reserve(most_lines);
  while (!reader.at_end()) {
    if (lines.size() == most_lines) {
      throw platform::file_error{platform::file_error_number::device_error,
                                 path + " has more than " + std::to_string(most_lines) + " lines."};
    }
    lines.push_back(reader.read_line());
  }
  if (lines.empty()) lines.emplace_back();
  tool_state.shiplist_last = static_cast<std::int16_t>(lines.size() - 1);
  tool_state.shiplist_lines = std::move(lines);
}

// Passes over neighbours, each of which drops the second of two equal lines and exchanges two that
// stand the wrong way round, leave the same lines: of equal keys the one that stood first.
void sort_shiplist() {
  std::vector<std::string>& lines = tool_state.shiplist_lines;
  const auto count = static_cast<std::size_t>(tool_state.shiplist_last);
  std::vector<std::string> keys(count);
  std::vector<place_in_order> order(count);
  for (std::size_t i = 0; i < count; ++i) {
    keys[i] = compare_key(lines[i]);
    order[i] = {first_characters(keys[i]), i};
  }
  std::sort(order.begin(), order.end(), [&keys](const place_in_order& a, const place_in_order& b) {
    if (a.first_characters != b.first_characters) return a.first_characters < b.first_characters;
    const int difference = keys[a.line].compare(keys[b.line]);
    return difference == 0 ? a.line < b.line : difference < 0;
  });
  const auto same = [&keys](const place_in_order& a, const place_in_order& b) {
    return keys[a.line] == keys[b.line];
  };
  order.erase(std::unique(order.begin(), order.end(), same), order.end());
  std::vector<std::string> sorted;
  sorted.reserve(order.size() + 1);
  for (const place_in_order& at : order) sorted.push_back(std::move(lines[at.line]));
  sorted.push_back(std::move(lines.back()));
  lines = std::move(sorted);
  tool_state.shiplist_last = static_cast<std::int16_t>(order.size());
}

}  // namespace ostrane
