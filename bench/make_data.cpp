// bench_make_data FOLDER [PART...]
// Writes the data of peers.sh, or the named parts of it, into folders:
//   names     an index of 32,768 records, empty files of these names, a shiplist, and the names
//             shuffled and in order, one per line
//   files     4000 files, 64 MB
//   archive   an archive of these files
//   icons     an archive with files of 300, 500 and 999 icons and a text of 32 KB
//   steps     an archive of 40 icon files
//   pictures  an archive with one file of 5000 icons, 64 by 64 pixels each
//   growth    folders of 1000, 10000 and 32766 files with one icon each, and of 64 files that have
//             64, 512 and 2047 MB together
#include <algorithm>
#include <exception>
#include <iostream>

#include "data.h"
#include "data/icon_packer.h"

namespace {

using namespace ostrane;
namespace fs = std::filesystem;

std::string lines_of(const std::vector<std::string>& names, const char* end) {
  std::string lines;
  for (const std::string& name : names) lines += name + end;
  return lines;
}

void make_names(const fs::path& folder) {
  std::vector<std::string> names = bench::shuffled_names(bench::max_names);
  fs::create_directories(folder / "empty");
  bench::write_file(folder / "shiplist.txt", lines_of(names, "\r\n"));
  bench::write_file(folder / "shuffled", lines_of(names, "\n"));
  std::sort(names.begin(), names.end());
  std::vector<bench::entry> entries;
  for (const std::string& name : names) {
    entries.push_back({name, ""});
    bench::write_file(folder / "empty" / name, "");
  }
  bench::write_file(folder / "in_order", lines_of(names, "\n"));
  bench::write_archive(folder, entries);
}

void make_files(const fs::path& folder) {
  const std::vector<bench::entry> files = bench::files_of_64_mb();
  bench::write_archive(folder / "archive", files);
  fs::create_directories(folder / "files");
  for (const bench::entry& file : files) {
    bench::write_file(folder / "files" / file.name, file.bytes);
  }
}

std::string text_of_32_kb() {
  std::string text;
  for (int i = 0; text.size() < 32768; ++i) {
    text += "Line " + std::to_string(i) + " tells of ships, ports and the wind between them.\r\n";
  }
  return text;
}

void make_icons(const fs::path& folder) {
  bench::write_archive(folder, {{"I300.SHP", shp_file(bench::mixed_pictures(300, 32))},
                                {"I500.SHP", shp_file(bench::mixed_pictures(500, 32))},
                                {"I999.SHP", shp_file(bench::mixed_pictures(999, 32))},
                                {"LONG.TXT", text_of_32_kb()},
                                {"SHORT.TXT", "short"}});
  bench::write_file(folder / "long.txt", text_of_32_kb());
}

void make_steps(const fs::path& folder) {
  constexpr int count = 40;
  std::vector<bench::entry> files;
  files.reserve(count);
  for (int i = 0; i < count; ++i) {
    files.push_back(
        {"I" + std::to_string(100 + i) + ".SHP", shp_file(bench::mixed_pictures(100, 32))});
  }
  bench::write_archive(folder, files);
}

void make_pictures(const fs::path& folder) {
  bench::write_archive(folder, {{"I.SHP", shp_file(bench::mixed_pictures(5000, 64))}});
}

void make_growth(const fs::path& folder) {
  const std::string icon = shp_file(bench::mixed_pictures(1, 16));
  for (const int count : {1000, 10000, 32766}) {
    const fs::path files = folder / (std::to_string(count) + "-files");
    fs::create_directories(files);
    for (const std::string& name : bench::shuffled_names(count)) {
      bench::write_file(files / name, icon);
    }
  }
  constexpr int files_per_size = 64;
  for (const int megabytes : {64, 512, 2047}) {
    const fs::path files = folder / (std::to_string(megabytes) + "-MB");
    fs::create_directories(files);
    for (int i = 0; i < files_per_size; ++i) {
      const fs::path file = files / ("F" + std::to_string(100 + i) + ".BIN");
      bench::write_file(file, "");
      fs::resize_file(file, (static_cast<std::uintmax_t>(megabytes) << 20U) / files_per_size);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: bench_make_data FOLDER [PART...]\n";
    return 2;
  }
  using maker = void (*)(const fs::path& folder);
  const std::pair<const char*, maker> parts[] = {
      {"names", make_names}, {"files", make_files},       {"icons", make_icons},
      {"steps", make_steps}, {"pictures", make_pictures}, {"growth", make_growth}};
  try {
    const fs::path folder = fs::absolute(argv[1]);
    for (const auto& [name, make] : parts) {
      const bool is_wanted =
          argc == 2 || std::find(argv + 2, argv + argc, std::string(name)) != argv + argc;
      if (is_wanted) make(name == std::string("files") ? folder : folder / name);
    }
  } catch (const std::exception& failure) {
    std::cerr << "bench_make_data: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
