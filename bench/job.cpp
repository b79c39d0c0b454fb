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
  bench::begin_tool_on(folder.parent_path());
  const std::string path = "C:\\" + folder.filename().string();
  if (job == "build") {
    bench::build_from(path);
  } else {
    bench::open_archive(path);
  }
  if (job == "compare") bench::compare_with(path, "shiplist.txt");
  if (job == "extract") bench::extract_into(path + "\\out");
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
