#include "lists/shiplist.h"

#include <algorithm>

#include "lists/compare_key.h"
#include "platform/file_error.h"
#include "platform/text_file.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::size_t most_lines = 32768;

}  // namespace

void read_shiplist(const std::string& path) {
  platform::text_reader reader(path);
  std::vector<std::string> lines;
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
  std::vector<std::size_t> order(count);
  for (std::size_t i = 0; i < count; ++i) {
    keys[i] = compare_key(lines[i]);
    order[i] = i;
  }
  std::sort(order.begin(), order.end(), [&keys](std::size_t a, std::size_t b) {
    const int difference = keys[a].compare(keys[b]);
    return difference == 0 ? a < b : difference < 0;
  });
  const auto same = [&keys](std::size_t a, std::size_t b) { return keys[a] == keys[b]; };
  order.erase(std::unique(order.begin(), order.end(), same), order.end());
  std::vector<std::string> sorted;
  sorted.reserve(order.size() + 1);
  for (const std::size_t i : order) sorted.push_back(std::move(lines[i]));
  sorted.push_back(std::move(lines.back()));
  lines = std::move(sorted);
  tool_state.shiplist_last = static_cast<std::int16_t>(order.size());
}

}  // namespace ostrane
