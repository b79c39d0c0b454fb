// The parts of the input are alternately a file name (UTF-8) and the bytes of that file. The
// entries of the archive built from them must be these files.
#include <set>

#include "data/entry_range.h"
#include "files/code_page.h"
#include "state/open_archive.h"
#include "target.h"

using namespace ostrane;

using contents = std::multiset<std::string>;

static void write_files(const texts& parts) {
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    const bool is_name = parts[i].find_first_of(std::string("/\0", 2)) == std::string::npos;
    if (is_name) std::ofstream(disk_path("C:\\work") / parts[i], std::ios::binary) << parts[i + 1];
  }
}

// The files that become entries.
static contents source_files() {
  contents found;
  for (const auto& [utf8, bytes] : files_in("C:\\work")) {
    const auto name = files::from_utf8(files::as_utf8(utf8));
    if (!name || name->front() == '.' || name->find('\\') != name->npos) continue;
    if (files::upper_case(*name) != "OSTRANE.DAT") found.insert(bytes);
  }
  return found;
}

static std::string build() {
  build_in();
  fuzz::check(!Form5.Visible(), "an archive can be built");
  return read("C:\\work\\OSTRANE.DAT");
}

static contents entries_of(const std::string& archive) {
  contents found;
  for (std::int32_t i = 0; i + 1 < Form1.List1.ListCount(); ++i) {
    const entry_range entry = range_of(index_records(), i);
    found.insert(archive.substr(static_cast<std::size_t>(entry.start),
                                static_cast<std::size_t>(size_of(entry))));
  }
  return found;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::restart_on_empty_drives();
  make_folder("C:\\work");
  write_files(fuzz::parts_of({reinterpret_cast<const char*>(data), size}));
  const contents before = source_files();
  const std::string archive = build();
  open_archive("C:\\work");
  fuzz::check(entries_of(archive) == before, "the entries are the files");
  fuzz::check(build() == archive, "a build leaves out the old archive");
  fuzz::check(source_files() == before, "the files do not change");
  // One message per build, and one about skipped files.
  const std::size_t messages = new_messages().size();
  fuzz::check(messages >= 2 && messages <= 4, "each build reports success");
  return 0;
}
