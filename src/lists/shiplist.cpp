#include "lists/shiplist.h"

#include <algorithm>

#include "files/file_error.h"
#include "files/paths.h"
#include "files/text_file.h"
#include "lists/compare_key.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::size_t max_lines = 32768;

// The first characters of a line's key as two numbers, which are less where the characters are:
// names are told apart by them without a look at the lines.
struct place_in_order {
  std::uint64_t first = 0;
  std::uint64_t second = 0;
  std::size_t line = 0;
};

std::uint64_t as_number(std::string_view key, std::size_t from) {
  std::uint64_t number = 0;
  for (std::size_t i = from; i < from + sizeof(number); ++i) {
    number = number << 8U | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  }
  return number;
}

place_in_order place_of(const std::string& line, std::size_t number) {
  const std::string key = compare_key(line);
  return {as_number(key, 0), as_number(key, sizeof(std::uint64_t)), number};
}

// Below 0, 0 or above it, as the key of the one is less, the same or greater.
int difference(const place_in_order& a, const place_in_order& b) {
  if (a.first != b.first) return a.first < b.first ? -1 : 1;
  if (a.second != b.second) return a.second < b.second ? -1 : 1;
  const std::vector<std::string>& lines = tool_state.shiplist_lines;
  return compare_key(lines[a.line]).compare(compare_key(lines[b.line]));
}

}  // namespace

void read_shiplist(const std::string& path) {
  files::text_reader reader(files::on_drives(path));
  std::vector<std::string> lines;
  lines.reserve(max_lines);
  while (!reader.at_end()) {
    if (lines.size() == max_lines) {
      throw files::file_error{files::file_error_number::device_error,
                              path + " has more than " + std::to_string(max_lines) + " lines."};
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
  std::vector<place_in_order> order;
  order.reserve(count);
  for (std::size_t i = 0; i < count; ++i) order.push_back(place_of(lines[i], i));
  std::sort(order.begin(), order.end(), [](const place_in_order& a, const place_in_order& b) {
    const int way = difference(a, b);
    return way == 0 ? a.line < b.line : way < 0;
  });
  const auto same = [](const auto& a, const auto& b) { return difference(a, b) == 0; };
  order.erase(std::unique(order.begin(), order.end(), same), order.end());
  std::vector<std::string> sorted;
  sorted.reserve(order.size() + 1);
  for (const place_in_order& at : order) sorted.push_back(std::move(lines[at.line]));
  sorted.push_back(std::move(lines.back()));
  lines = std::move(sorted);
  tool_state.shiplist_last = static_cast<std::int16_t>(order.size());
}

}  // namespace ostrane
