#include <benchmark/benchmark.h>

#include <algorithm>

#include "data.h"
#include "tool.h"

namespace {

using namespace ostrane;

void compare_with_shuffled_shiplist(benchmark::State& state) {
  const std::filesystem::path folder = bench::scratch("compare");
  std::vector<std::string> names = bench::shuffled_names(bench::max_names);
  std::string shiplist;
  for (const std::string& name : names) shiplist += name + "\r\n";
  bench::write_file(folder / "ships.txt", shiplist);
  std::sort(names.begin(), names.end());
  std::vector<bench::entry> entries;
  entries.reserve(names.size());
  for (const std::string& name : names) entries.push_back({name, ""});
  bench::write_archive(folder, entries);
  bench::start_tool_on(folder);
  bench::open_archive("C:\\");
  for (auto _ : state) bench::run_comparison("C:\\", "ships.txt");
  bench::expect_success();
}
BENCHMARK(compare_with_shuffled_shiplist)->Unit(benchmark::kMicrosecond);

}  // namespace
