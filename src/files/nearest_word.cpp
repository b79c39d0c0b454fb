#include "files/nearest_word.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace files {

namespace {

// The number of characters to insert, remove or replace (Levenshtein distance).
std::size_t distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0U);
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, replaced});
    }
  }
  return row.back();
}

}  // namespace

std::string did_you_mean(const std::string& word, const std::vector<std::string>& known) {
  std::string best;
  std::size_t least = word.size() / 3 + 1;
  for (const std::string& one : known) {
    const std::size_t found = distance(word, one);
    if (found >= least) continue;
    least = found;
    best = one;
  }
  return best.empty() ? "" : " Did you mean " + best + "?";
}

}  // namespace files
