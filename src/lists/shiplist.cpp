#include "lists/shiplist.h"

#include <algorithm>

#include "lists/compare_key.h"
#include "platform/file_error.h"
#include "platform/text_file.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::size_t most_lines = 32768;

struct keyed_line {
  std::string key;
  std::string line;
};

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
  std::vector<keyed_line> names;
  for (std::int16_t i = 0; i < tool_state.shiplist_last; ++i) {
    std::string& line = lines[static_cast<std::size_t>(i)];
    names.push_back({compare_key(line), std::move(line)});
  }
  std::stable_sort(names.begin(), names.end(),
                   [](const keyed_line& a, const keyed_line& b) { return a.key < b.key; });
  const auto behind =
      std::unique(names.begin(), names.end(),
                  [](const keyed_line& a, const keyed_line& b) { return a.key == b.key; });
  std::string final_line = std::move(lines.back());
  lines.clear();
  for (auto at = names.begin(); at != behind; ++at) lines.push_back(std::move(at->line));
  tool_state.shiplist_last = static_cast<std::int16_t>(lines.size());
  lines.push_back(std::move(final_line));
}

}  // namespace ostrane
