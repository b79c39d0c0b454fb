#include <benchmark/benchmark.h>

#include "data.h"
#include "tool.h"

namespace {

using namespace ostrane;

const std::vector<bench::entry>& entries() {
  static const std::vector<bench::entry> made = bench::files_of_64_mb();
  return made;
}

void extract_all(benchmark::State& state) {
  const std::filesystem::path folder = bench::scratch("extract");
  bench::write_archive(folder, entries());
  create_directories(folder / "out");
  bench::start_tool_on(folder);
  bench::open_archive("C:\\");
  for (auto _ : state) {
    state.PauseTiming();
    remove_all(folder / "out");
    create_directories(folder / "out");
    state.ResumeTiming();
    bench::extract_into("C:\\out");
  }
  bench::expect_success();
}
BENCHMARK(extract_all)->Unit(benchmark::kMillisecond);

void build_archive(benchmark::State& state) {
  const std::filesystem::path folder = bench::scratch("build");
  for (const bench::entry& e : entries()) bench::write_file(folder / e.name, e.bytes);
  bench::start_tool_on(folder);
  for (auto _ : state) bench::build_from("C:\\");
  bench::expect_success();
}
BENCHMARK(build_archive)->Unit(benchmark::kMillisecond);

}  // namespace
