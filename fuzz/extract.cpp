// The input is an archive. Its extraction writes files into the one folder and nothing else.
#include "forms/forms.h"
#include "platform/user.h"
#include "tool_on_drives.h"

namespace fuzz = ostrane::fuzz;
namespace fs = std::filesystem;
using namespace ostrane;

namespace {

// Outside `out` lie the folders down to it, the drive D: and the archive.
void check_all_places(const fs::path& out, std::size_t archive_size) {
  std::size_t outside = 0;
  std::uintmax_t bytes = 0;
  for (const auto& found : fs::recursive_directory_iterator(fuzz::everything())) {
    const bool inside = found.path().parent_path() == out;
    fuzz::check(!inside || found.is_regular_file(), "entries become files");
    if (!inside) ++outside;
    if (inside && !found.is_symlink()) bytes += found.file_size();
  }
  fuzz::check(outside == 7, "nothing is written outside the folder");
  fuzz::check(bytes <= archive_size, "files hold bytes of the archive once");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view archive = fuzz::text_of(data, size);
  fuzz::begin();
  fuzz::open_archive_of(archive);
  const std::size_t messages_before = fuzz::messages();
  const fs::path out = fuzz::drive_c() / "out";
  fs::create_directory(out);
  // An entry of this name would be written over the archive that it comes from.
  fs::create_symlink("../ostrane.dat", out / "SELF.DAT");
  platform::user::click(Form1.mnu_ext);
  Form4.Dir1.Path = "C:\\out";
  platform::user::click(Form4.Command2);
  fuzz::check(fuzz::messages() - messages_before <= 2, "an extraction gives two messages");
  fuzz::check(!Form3.Visible(), "the progress goes");
  fuzz::check(fuzz::read(fuzz::drive_c() / "ostrane.dat") == archive, "the archive stays");
  check_all_places(out, size);
  fuzz::check_memory(fuzz::memory_without_pictures, size);
  return 0;
}
