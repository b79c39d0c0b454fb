// The input is an archive. Its extraction writes files into the one folder and nothing else.
#include "target.h"

using namespace ostrane;

namespace {

// Outside `out` lie the folders down to it, the drive D:, the tool's folder and the archive.
void check_all_places(const fs::path& out, std::size_t archive_size) {
  std::size_t outside = 0;
  std::uintmax_t bytes = 0;
  for (const auto& found : fs::recursive_directory_iterator(fuzz::everything())) {
    const bool inside = found.path().parent_path() == out;
    fuzz::check(!inside || found.is_regular_file(), "entries become files");
    if (!inside) ++outside;
    if (inside && !found.is_symlink()) bytes += found.file_size();
  }
  fuzz::check(outside == 8, "nothing is written outside the folder");
  fuzz::check(bytes <= archive_size, "files hold bytes of the archive once");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string archive = fuzz::raw_or_made(data, size, fuzz::archive);
  fuzz::begin_on_empty_drives();
  open_bytes(archive);
  new_messages();
  const fs::path out = place("C:\\out");
  fs::create_directory(out);
  // An entry of this name would be written over the archive that it comes from.
  fs::create_symlink("../ostrane.dat", out / "SELF.DAT");
  extract_into("C:\\out");
  fuzz::check(new_messages().size() <= 2, "an extraction gives two messages");
  fuzz::check(!Form3.Visible(), "the progress goes");
  fuzz::check(read("C:\\ostrane.dat") == archive, "the archive stays");
  check_all_places(out, archive.size());
  return 0;
}
