// The input is an archive, which is checked as by `ostrane-dat check` and extracted. The extraction
// must write nothing but files in one folder.
#include "data/archive_check.h"
#include "generated_input.h"

using namespace ostrane;

namespace {

// The 8 paths outside `out` are its parent folders, the drive D:, the tool's folder and the
// archive.
void check_all_folders(const fs::path& out, std::size_t archive_size) {
  std::size_t outside = 0;
  std::uintmax_t bytes = 0;
  for (const auto& found : fs::recursive_directory_iterator(fuzz::top_folder())) {
    const bool inside = found.path().parent_path() == out;
    fuzz::check(!inside || found.is_regular_file(), "entries become files");
    if (!inside) ++outside;
    if (inside && !found.is_symlink()) bytes += found.file_size();
  }
  fuzz::check(outside == 8, "nothing is written outside the folder");
  fuzz::check(bytes <= archive_size, "each byte of the archive is written at most once");
}

void check_faults(std::size_t archive_size) {
  std::size_t faults = 0;
  check_archive(
      {disk_path("C:\\ostrane.dat"), u8"a"},
      [&faults](const std::string&, const std::string& fault) {
        fuzz::check(!fault.empty() && fault.find('\n') == fault.npos, "a fault is a line");
        ++faults;
      },
      [](std::size_t, std::size_t, const std::string&) {});
  // A record has at most six faults, an icon four.
  fuzz::check(faults <= archive_size + 10, "the number of faults is limited");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string archive = fuzz::raw_or_generated(data, size, fuzz::archive);
  fuzz::restart_on_empty_drives();
  open_bytes(archive);
  check_faults(archive.size());
  new_messages();
  const fs::path out = disk_path("C:\\out");
  fs::create_directory(out);
  // An entry of this name would overwrite the open archive.
  fs::create_symlink("../ostrane.dat", out / "SELF.DAT");
  extract_into("C:\\out");
  fuzz::check(new_messages().size() <= 2, "an extraction shows at most two messages");
  fuzz::check(!Form3.Visible(), "the progress is hidden");
  fuzz::check(read("C:\\ostrane.dat") == archive, "the archive does not change");
  check_all_folders(out, archive.size());
  return 0;
}
