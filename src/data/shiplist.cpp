#include "data/shiplist.h"

#include <algorithm>

#include "data/data_error.h"
#include "files/text.h"
#include "files/text_file.h"

namespace ostrane {

namespace {

constexpr std::size_t max_lines = 32768;

// The first 16 bytes of a line's key as two big-endian numbers, so that most comparisons are two
// integer compares.
struct sort_key {
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

sort_key key_of(const std::string& line, std::size_t number) {
  const std::string key = files::compare_key(line);
  return {as_number(key, 0), as_number(key, sizeof(std::uint64_t)), number};
}

// Three-way comparison of the keys.
int compare(const std::vector<std::string>& lines, const sort_key& a, const sort_key& b) {
  if (a.first != b.first) return a.first < b.first ? -1 : 1;
  if (a.second != b.second) return a.second < b.second ? -1 : 1;
  return files::compare_key(lines[a.line]).compare(files::compare_key(lines[b.line]));
}

}  // namespace

void read_shiplist(const files::file_path& path, shiplist_comparison& comparison) {
  files::text_reader reader(path);
  std::vector<std::string> lines;
  lines.reserve(max_lines);
  while (!reader.at_end()) {
    if (lines.size() == max_lines) {
      throw data_error(path.shown, "has more than " + std::to_string(max_lines) + " lines.");
    }
    lines.push_back(reader.read_line());
  }
  if (lines.empty()) lines.emplace_back();
  comparison.shiplist_last = static_cast<std::int16_t>(lines.size() - 1);
  comparison.shiplist_lines = std::move(lines);
}

// Same result as a bubble sort that drops duplicates: of equal keys the first stays.
void sort_shiplist(shiplist_comparison& comparison) {
  std::vector<std::string>& lines = comparison.shiplist_lines;
  const auto count = static_cast<std::size_t>(comparison.shiplist_last);
  std::vector<sort_key> order;
  order.reserve(count);
  for (std::size_t i = 0; i < count; ++i) order.push_back(key_of(lines[i], i));
  const auto less = [&lines](const auto& a, const auto& b) { return compare(lines, a, b) < 0; };
  const auto same = [&lines](const auto& a, const auto& b) { return compare(lines, a, b) == 0; };
  std::stable_sort(order.begin(), order.end(), less);
  order.erase(std::unique(order.begin(), order.end(), same), order.end());
  std::vector<std::string> sorted;
  sorted.reserve(order.size() + 1);
  for (const sort_key& key : order) sorted.push_back(std::move(lines[key.line]));
  sorted.push_back(std::move(lines.back()));
  lines = std::move(sorted);
  comparison.shiplist_last = static_cast<std::int16_t>(order.size());
}

}  // namespace ostrane
