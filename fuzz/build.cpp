// The parts of the input are names and bytes of files in turn, names as the system has them. The
// archive built from them must give them back.
#include <set>

#include "archive/entry_bounds.h"
#include "forms/forms.h"
#include "platform/code_page.h"
#include "platform/user.h"
#include "tool_on_drives.h"

namespace fuzz = ostrane::fuzz;
namespace user = platform::user;
namespace fs = std::filesystem;
using namespace ostrane;

namespace {

using contents = std::multiset<std::string>;

void write_files(const fs::path& folder, const std::vector<std::string>& parts) {
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    const bool is_name = parts[i].find_first_of(std::string("/\0", 2)) == std::string::npos;
    if (is_name) fuzz::write(folder / parts[i], parts[i + 1]);
  }
}

// Of the files that the tool can name and that are not hidden, without archives.
contents files_in(const fs::path& folder) {
  contents found;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const auto name = platform::from_utf8(entry.path().filename().string());
    if (!name || name->front() == '.' || name->find('\\') != name->npos) continue;
    if (platform::upper_case(*name) != "OSTRANE.DAT") found.insert(fuzz::read(entry.path()));
  }
  return found;
}

std::string build() {
  user::click(Form1.mnu_make);
  Form5.Dir1.Path = "C:\\in";
  user::click(Form5.Command1);
  fuzz::check(!Form5.Visible(), "an archive can be built");
  return fuzz::read(fuzz::drive_c() / "in" / "OSTRANE.DAT");
}

contents entries_of(const std::string& archive) {
  contents found;
  for (std::int32_t i = 0; i + 1 < Form1.List1.ListCount(); ++i) {
    const auto from = static_cast<std::size_t>(entry_start(i));
    found.insert(archive.substr(from, static_cast<std::size_t>(entry_end(i)) - from));
  }
  return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::begin();
  const fs::path folder = fuzz::drive_c() / "in";
  fs::create_directory(folder);
  write_files(folder, fuzz::parts_of(fuzz::text_of(data, size)));
  const contents before = files_in(folder);
  const std::string archive = build();
  fuzz::open_archive("C:\\in");
  fuzz::check(entries_of(archive) == before, "the entries are the files");
  fuzz::check(build() == archive, "an archive is no file of the next one");
  fuzz::check(files_in(folder) == before, "the files stay as they are");
  fuzz::check(fuzz::messages() == 2, "each build says so");
  fuzz::check_memory(fuzz::memory_without_pictures, size);
  return 0;
}
