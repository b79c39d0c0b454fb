#include "png_pictures.h"

#include <png.h>

#include <array>
#include <cstring>
#include <stdexcept>

namespace ostrane::bench {

namespace {

void append_bytes(png_structp png, png_bytep bytes, size_t count) {
  auto* to = static_cast<std::string*>(png_get_io_ptr(png));
  to->append(reinterpret_cast<const char*>(bytes), count);
}

void read_bytes(png_structp png, png_bytep to, size_t count) {
  auto* at = static_cast<const char**>(png_get_io_ptr(png));
  std::memcpy(to, *at, count);
  *at += count;
}

[[noreturn]] void fail(png_structp /*png*/, png_const_charp text) {
  throw std::runtime_error(text);
}

}  // namespace

std::string png_of(const picture& drawn) {
  std::string bytes;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(png, &bytes, append_bytes, nullptr);
  const auto width = static_cast<png_uint_32>(drawn.columns());
  const auto height = static_cast<png_uint_32>(drawn.rows());
  png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_PALETTE, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  std::array<png_color, 256> colours{};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    colours[i] = {static_cast<png_byte>(i), static_cast<png_byte>(i), static_cast<png_byte>(i)};
  }
  png_set_PLTE(png, info, colours.data(), 256);
  png_write_info(png, info);
  std::vector<png_byte> row(width);
  for (int y = 0; y < drawn.rows(); ++y) {
    for (int x = 0; x < drawn.columns(); ++x) {
      row[static_cast<std::size_t>(x)] =
          drawn.is_set(x, y) ? static_cast<png_byte>(drawn.at(x, y)) : png_byte{0};
    }
    png_write_row(png, row.data());
  }
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return bytes;
}

void decode_png(const char*& at, unsigned char* to) {
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_read_fn(png, static_cast<void*>(&at), read_bytes);
  png_read_info(png, info);
  const png_uint_32 rows = png_get_image_height(png, info);
  const std::size_t row_bytes = png_get_rowbytes(png, info);
  for (png_uint_32 y = 0; y < rows; ++y) png_read_row(png, to + y * row_bytes, nullptr);
  png_read_end(png, nullptr);
  png_destroy_read_struct(&png, &info, nullptr);
}

}  // namespace ostrane::bench
