// bench_job index|compare|extract|build FOLDER
// One job of the tool as a process of its own, without a screen. FOLDER holds ostrane.dat, or for
// build the files; extract writes into its folder "out", compare reads shiplist.txt.
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "tool.h"

namespace {

using namespace ostrane;

void run(const std::string& job, const std::filesystem::path& folder) {
  bench::begin_tool_on(folder);
  if (job == "build") {
    bench::build_from("C:\\");
  } else {
    bench::open_archive("C:\\");
  }
  if (job == "compare") bench::compare_with("shiplist.txt");
  if (job == "extract") bench::extract_into("C:\\out");
  bench::expect_no_complaint();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: bench_job index|compare|extract|build FOLDER\n";
    return 2;
  }
  try {
    run(argv[1], std::filesystem::absolute(argv[2]));
  } catch (const std::exception& failure) {
    std::cerr << "bench_job: " << failure.what() << '\n';
    return 1;
  }
  std::cout.flush();
  return 0;
}
