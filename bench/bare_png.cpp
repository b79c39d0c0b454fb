// bench_bare_png write FOLDER OUT | read FOLDER [THREADS]
// A bare loop with libpng over the PNGs of a folder. write writes the same pixels, palettes and
// transparent indices into OUT, with libpng's own settings. read only reads the PNGs, on one thread
// unless told otherwise. Prints the microseconds of the loop.
#include <png.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct pixels {
  std::string name;
  png_uint_32 width = 0;
  png_uint_32 height = 0;
  int colour_type = 0;
  std::size_t row_bytes = 0;
  std::vector<png_color> colours;
  std::vector<png_byte> alphas;
  std::vector<png_byte> bytes;
};

pixels read_png(const fs::path& path) {
  pixels read;
  read.name = path.filename().string();
  std::FILE* file = std::fopen(path.c_str(), "rb");
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_read_info(png, info);
  read.width = png_get_image_width(png, info);
  read.height = png_get_image_height(png, info);
  read.colour_type = png_get_color_type(png, info);
  png_colorp colours = nullptr;
  png_bytep alphas = nullptr;
  int count = 0;
  if (png_get_PLTE(png, info, &colours, &count) != 0) read.colours.assign(colours, colours + count);
  if (png_get_tRNS(png, info, &alphas, &count, nullptr) != 0) {
    read.alphas.assign(alphas, alphas + count);
  }
  read.row_bytes = png_get_rowbytes(png, info);
  read.bytes.resize(read.row_bytes * read.height);
  for (png_uint_32 row = 0; row < read.height; ++row) {
    png_read_row(png, read.bytes.data() + row * read.row_bytes, nullptr);
  }
  png_read_end(png, nullptr);
  png_destroy_read_struct(&png, &info, nullptr);
  std::fclose(file);
  return read;
}

void write_png(const pixels& drawn, const fs::path& folder) {
  std::FILE* file = std::fopen((folder / drawn.name).c_str(), "wb");
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_set_IHDR(png, info, drawn.width, drawn.height, 8, drawn.colour_type, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (!drawn.colours.empty()) {
    png_set_PLTE(png, info, drawn.colours.data(), static_cast<int>(drawn.colours.size()));
  }
  if (!drawn.alphas.empty()) {
    png_set_tRNS(png, info, drawn.alphas.data(), static_cast<int>(drawn.alphas.size()), nullptr);
  }
  png_write_info(png, info);
  for (png_uint_32 row = 0; row < drawn.height; ++row) {
    png_write_row(png, drawn.bytes.data() + row * drawn.row_bytes);
  }
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  std::fclose(file);
}

std::size_t read_on_threads(const std::vector<fs::path>& files, std::size_t count) {
  std::atomic<std::size_t> bytes = 0;
  std::atomic<std::size_t> next = 0;
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < count; ++i) {
    threads.emplace_back([&] {
      for (std::size_t at = next++; at < files.size(); at = next++) {
        bytes += read_png(files[at]).bytes.size();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const std::string job = argv[1];
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(argv[2])) {
    if (entry.path().extension() == ".png") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<pixels> all;
  if (job == "write") {
    for (const fs::path& file : files) all.push_back(read_png(file));
  }
  const auto start = std::chrono::steady_clock::now();
  std::size_t bytes = 0;
  for (const pixels& drawn : all) write_png(drawn, argv[3]);
  if (job == "read") {
    bytes = read_on_threads(files, argc > 3 ? std::stoul(argv[3]) : 1);
  }
  const auto took = std::chrono::steady_clock::now() - start;
  std::cout << std::chrono::duration_cast<std::chrono::microseconds>(took).count() << " 0\n";
  return job == "read" && bytes == 0 ? 1 : 0;
}
