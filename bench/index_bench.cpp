#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "data.h"
#include "data/archive_format.h"
#include "files/little_endian.h"
#include "forms/forms.h"
#include "tool.h"

namespace {

using namespace ostrane;

std::filesystem::path folder_of_names() {
  std::filesystem::path folder = bench::scratch("names");
  if (exists(folder / "ostrane.dat")) return folder;
  std::vector<bench::entry> entries;
  for (const std::string& name : bench::shuffled_names(bench::max_names)) {
    entries.push_back({name, ""});
  }
  bench::write_archive(folder, entries);
  return folder;
}

void read_index_into_list(benchmark::State& state) {
  bench::start_tool_on(folder_of_names());
  for (auto _ : state) bench::open_archive("C:\\");
  if (Form1.List1.ListCount() != bench::max_names + 1) state.SkipWithError("not all were read");
}
BENCHMARK(read_index_into_list)->Unit(benchmark::kMicrosecond);

struct split_record {
  std::int32_t offset;
  std::string name;
};

void fread_and_split(benchmark::State& state) {
  const std::string path = folder_of_names() / "ostrane.dat";
  for (auto _ : state) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    std::vector<std::byte> bytes(count_size + record_size * (bench::max_names + 1));
    const std::size_t got = std::fread(bytes.data(), 1, bytes.size(), file.get());
    std::vector<split_record> records;
    for (std::size_t at = count_size; at + record_size <= got; at += record_size) {
      const auto* name = reinterpret_cast<const char*>(bytes.data()) + at + 4;
      records.push_back(
          {files::int32_at(std::span(bytes).subspan(at), 0), {name, strnlen(name, name_size)}});
    }
    benchmark::DoNotOptimize(records.data());
  }
}
BENCHMARK(fread_and_split)->Unit(benchmark::kMicrosecond);

}  // namespace
