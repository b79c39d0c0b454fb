// bench_job index|compare|extract|build FOLDER
// Runs one job of the tool without a screen. Prints its microseconds, starting with the opening of
// its dialog. FOLDER contains ostrane.dat, or for build the files. extract writes into its folder
// "out". compare reads shiplist.txt.
#include <chrono>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "tool.h"

namespace {

using namespace ostrane;

void run(const std::string& job, const std::string& path) {
  if (job == "index") bench::open_archive(path);
  if (job == "compare") bench::run_comparison(path, "shiplist.txt");
  if (job == "extract") bench::extract_into(path + "\\out");
  if (job == "build") bench::build_from(path);
}

std::int64_t microseconds_of(const std::string& job, const std::filesystem::path& folder) {
  using clock = std::chrono::steady_clock;
  bench::start_tool_on(folder.parent_path());
  const std::string path = "C:\\" + folder.filename().string();
  if (job == "compare" || job == "extract") bench::open_archive(path);
  const auto start = clock::now();
  run(job, path);
  const auto took = clock::now() - start;
  bench::expect_success();
  return std::chrono::duration_cast<std::chrono::microseconds>(took).count();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: bench_job index|compare|extract|build FOLDER\n";
    return 2;
  }
  try {
    std::cout << microseconds_of(argv[1], std::filesystem::absolute(argv[2])) << " 0\n";
  } catch (const std::exception& failure) {
    std::cerr << "bench_job: " << failure.what() << '\n';
    return 1;
  }
  std::cout.flush();
  return 0;
}
