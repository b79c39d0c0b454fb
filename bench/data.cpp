#include "data.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

namespace ostrane::bench {

namespace fs = std::filesystem;

namespace {

struct scratch_root {
  fs::path path = fs::temp_directory_path() / ("ostrane-bench-" + std::to_string(getpid()));
  ~scratch_root() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
};

// Draws a part of a row: a gap, a run of one colour, or pixels of different colours.
void draw_segment(picture& drawn, int row, int from, int end, unsigned kind) {
  for (int x = from; x < end; ++x) {
    if (kind == 0) continue;
    const int index = kind == 1 ? from + row : x * 7 + row * 13;
    drawn.set(x, row, static_cast<std::uint8_t>(index));
  }
}

}  // namespace

std::vector<std::string> shuffled_names(int count) {
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) names.push_back("F" + std::to_string(100000 + i) + ".SHP");
  std::mt19937 order(1);  // NOLINT(cert-msc51-cpp): the same in every run
  std::shuffle(names.begin(), names.end(), order);
  return names;
}

std::vector<picture> mixed_pictures(int count, int side) {
  std::mt19937 chance(2);  // NOLINT(cert-msc51-cpp): the same in every run
  std::vector<picture> pictures;
  for (int i = 0; i < count; ++i) {
    picture drawn(side, side);
    for (int row = 0; row < side; ++row) {
      for (int x = 0; x < side;) {
        const int end = std::min(side, x + 1 + static_cast<int>(chance() % 16));
        draw_segment(drawn, row, x, end, static_cast<unsigned>(chance() % 3));
        x = end;
      }
    }
    // The data box is the whole picture.
    drawn.set(0, 0, 1);
    drawn.set(side - 1, side - 1, 1);
    pictures.push_back(std::move(drawn));
  }
  return pictures;
}

std::vector<entry> files_of_64_mb() {
  std::mt19937 chance(3);  // NOLINT(cert-msc51-cpp): the same in every run
  std::vector<entry> files;
  for (int i = 0; i < 4000; ++i) {
    std::string bytes(8192 + chance() % 16384, '\0');
    for (char& c : bytes) c = static_cast<char>(chance());
    files.push_back({"FILE" + std::to_string(1000 + i) + ".BIN", std::move(bytes)});
  }
  return files;
}

void write_archive(const fs::path& folder, const std::vector<entry>& entries) {
  fs::create_directories(folder);
  write_file(folder / "ostrane.dat", archive_bytes(entries));
}

fs::path scratch(const std::string& name) {
  static const scratch_root root;
  fs::path path = root.path / name;
  fs::create_directories(path);
  return path;
}

}  // namespace ostrane::bench
