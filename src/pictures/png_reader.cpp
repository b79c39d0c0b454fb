#include "pictures/png_reader.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <vector>

#include "data/data_error.h"
#include "data/icon_file.h"

namespace ostrane {

namespace {

constexpr png_uint_32 max_png_side = 32768;
// The best compression ratio of deflate.
constexpr std::uint64_t max_inflation = 1032;

// All state of reading is here, as libpng leaves a failed call by longjmp.
struct png_job {
  std::string_view bytes;
  colour_finder& colours;
  std::size_t at = 0;
  std::string failure = {};
  png_uint_32 width = 0;
  png_uint_32 height = 0;
  bool is_indexed = false;
  bool has_alpha = false;
  int passes = 1;
  std::size_t row_bytes = 0;
  std::array<std::int16_t, 256> map = {};
  std::vector<png_byte> rows = {};  // all of an interlaced picture, else one
  picture marked{0, 0};
};

void read_bytes(png_structp png, png_bytep to, size_t count) {
  auto* job = static_cast<png_job*>(png_get_io_ptr(png));
  if (job->bytes.size() - job->at < count) png_error(png, "it ends too early");
  std::memcpy(to, job->bytes.data() + job->at, count);
  job->at += count;
}

[[noreturn]] void fail(png_structp png, png_const_charp text) {
  static_cast<png_job*>(png_get_error_ptr(png))->failure = text;
  png_longjmp(png, 1);
}

void ignore_warning(png_structp /*png*/, png_const_charp /*text*/) {}

void map_indices(png_structp png, png_infop info, png_job& job) {
  png_colorp entries = nullptr;
  png_bytep alphas = nullptr;
  int count = 0;
  int alpha_count = 0;
  png_get_PLTE(png, info, &entries, &count);
  png_get_tRNS(png, info, &alphas, &alpha_count, nullptr);
  std::array<palette_entry, 256> all = {};
  for (int i = 0; i < count; ++i) {
    const png_color& entry = entries[i];
    all[static_cast<std::size_t>(i)] = {
        static_cast<std::uint32_t>(entry.red << 16 | entry.green << 8 | entry.blue),
        i < alpha_count ? alphas[i] : 0xFF};
  }
  job.map = marked_indices(std::span(all).first(static_cast<std::size_t>(count)), job.colours);
}

// Pixels that are not indexed become red, green, blue and alpha, a byte each.
void choose_pixels(png_structp png, png_infop info, png_job& job) {
  job.is_indexed = png_get_color_type(png, info) == PNG_COLOR_TYPE_PALETTE;
  if (job.is_indexed) {
    png_set_packing(png);
  } else {
    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
  }
  job.passes = png_set_interlace_handling(png);
}

// A long jump passes the destructors of texts, so this one is in an array.
void require_size(png_structp png, const png_job& job) {
  const bool is_small = job.width <= max_png_side && job.height <= max_png_side;
  if (is_small && std::int64_t{job.width} * job.height <= max_picture_cells) return;
  std::array<char, 160> text = {};
  std::snprintf(text.data(), text.size(),
                "it has %u by %u pixels, which may be at most %u by %u and %lld together",
                job.width, job.height, max_png_side, max_png_side,
                static_cast<long long>(max_picture_cells));
  png_error(png, text.data());
}

void read_head(png_structp png, png_infop info, png_job& job) {
  png_set_read_fn(png, &job, read_bytes);
  png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
  png_set_chunk_malloc_max(png, std::size_t{8} << 20U);
  png_read_info(png, info);
  job.width = png_get_image_width(png, info);
  job.height = png_get_image_height(png, info);
  require_size(png, job);
  if (png_get_rowbytes(png, info) * std::uint64_t{job.height} > max_inflation * job.bytes.size()) {
    png_error(png, "it ends too early");
  }
  choose_pixels(png, info, job);
  png_read_update_info(png, info);
  if (job.is_indexed) map_indices(png, info, job);
  job.row_bytes = png_get_rowbytes(png, info);
}

void convert_row(png_job& job, const png_byte* pixels, int row) {
  const std::span<std::int16_t> cells = job.marked.row(row);
  if (job.is_indexed) {
    std::transform(pixels, pixels + cells.size(), cells.begin(),
                   [&map = job.map](png_byte index) { return map[index]; });
    return;
  }
  for (std::int16_t& cell : cells) {
    const auto colour = static_cast<std::uint32_t>(pixels[0] << 16 | pixels[1] << 8 | pixels[2]);
    cell = pixels[3] < 0x80 ? marked_cell({}, pixels[3])
                            : marked_cell(job.colours.find(colour), pixels[3]);
    pixels += 4;
  }
}

void read_rows(png_structp png, png_job& job) {
  const bool is_interlaced = job.passes > 1;
  for (int pass = 0; pass < job.passes; ++pass) {
    for (png_uint_32 row = 0; row < job.height; ++row) {
      png_byte* to = job.rows.data() + (is_interlaced ? row * job.row_bytes : 0);
      png_read_row(png, to, nullptr);
      if (pass + 1 == job.passes) convert_row(job, to, static_cast<int>(row));
    }
  }
  png_read_end(png, nullptr);
}

// Calls one of the two functions above. Returns false if libpng has failed.
template <typename Part>
bool run(png_structp png, const Part& part) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;  // NOLINT: how libpng reports a failure
  part();
  return true;
}

void read(png_structp png, png_infop info, png_job& job) {
  if (!run(png, [&] { read_head(png, info, job); })) return;
  job.marked = picture(static_cast<int>(job.width), static_cast<int>(job.height));
  job.rows.resize(job.row_bytes * (job.passes > 1 ? job.height : 1));
  run(png, [&] { read_rows(png, job); });
}

// The format of a picture that is often named .png, or null.
const char* other_format(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xD8\xFF")) return "JPEG";
  if (bytes.starts_with("GIF8")) return "GIF";
  if (bytes.starts_with("BM")) return "BMP";
  return bytes.starts_with("RIFF") && bytes.substr(0, 12).ends_with("WEBP") ? "WebP" : nullptr;
}

}  // namespace

picture read_png(std::string_view bytes, const std::u8string& shown, colour_finder& colours) {
  const char* other = other_format(bytes);
  if (other != nullptr) throw data_error(shown, std::string("is a ") + other + ", not a PNG.");
  png_job job = {.bytes = bytes, .colours = colours};
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &job, fail, ignore_warning);
  png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
  if (info == nullptr) throw std::bad_alloc();
  struct closing {
    png_structp* png;
    png_infop* info;
    ~closing() { png_destroy_read_struct(png, info, nullptr); }
  } at_end{&png, &info};
  read(png, info, job);
  if (!job.failure.empty()) {
    throw data_error(shown, "cannot be read as a PNG: " + job.failure + ".");
  }
  return std::move(job.marked);
}

}  // namespace ostrane
