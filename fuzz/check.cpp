// The input is an archive, which is checked as by `ostrane-dat check`.
#include "data/archive_check.h"
#include "generated_input.h"

using namespace ostrane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string archive = fuzz::raw_or_generated(data, size, fuzz::archive);
  static const fs::path file = fuzz::top_folder() / "checked.dat";
  write_bytes(file, archive);
  std::size_t faults = 0;
  check_archive(
      {file, u8"checked.dat"},
      [&faults](const std::string&, const std::string& fault) {
        fuzz::check(!fault.empty() && fault.find('\n') == fault.npos, "a fault is a line");
        ++faults;
      },
      [](std::size_t, std::size_t, const std::string&) {});
  // A record has at most six faults, an icon four.
  fuzz::check(faults <= archive.size() + 10, "the number of faults is limited");
  return 0;
}
