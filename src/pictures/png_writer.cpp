#include "pictures/png_writer.h"

#include <png.h>

#include <csetjmp>
#include <vector>

#include "data/data_error.h"
#include "data/pixel_form.h"

namespace ostrane {

namespace {

// Files are up to 6 % larger than at zlib's own level, and take three quarters of its time or less.
constexpr int compression_level = 4;

// All state of writing is here, as libpng leaves a failed call by longjmp.
struct png_job {
  const picture& drawn;
  pixel_form form;
  const rgb_palette& colours;
  int scale;
  std::vector<png_byte> row = {};
  std::string bytes = {};
  std::string failure = {};
};

void append_bytes(png_structp png, png_bytep bytes, size_t count) {
  static_cast<png_job*>(png_get_io_ptr(png))
      ->bytes.append(reinterpret_cast<const char*>(bytes), count);
}

[[noreturn]] void fail(png_structp png, png_const_charp text) {
  static_cast<png_job*>(png_get_error_ptr(png))->failure = text;
  png_longjmp(png, 1);
}

void ignore_warning(png_structp /*png*/, png_const_charp /*text*/) {}

void set_palette(png_structp png, png_infop info, const png_job& job) {
  std::array<png_color, 256> colours{};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const std::uint32_t colour = job.colours[i];
    colours[i] = {static_cast<png_byte>(colour >> 16U), static_cast<png_byte>(colour >> 8U),
                  static_cast<png_byte>(colour)};
  }
  png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
  if (!job.form.unset_index) return;
  std::array<png_byte, 256> alphas{};
  alphas.fill(0xFF);
  alphas[*job.form.unset_index] = 0;
  png_set_tRNS(png, info, alphas.data(), *job.form.unset_index + 1, nullptr);
}

void fill_indexed_row(png_job& job, std::span<const std::int16_t> cells) {
  png_byte* to = job.row.data();
  const png_byte unset = job.form.unset_index.value_or(0);
  for (const std::int16_t cell : cells) {
    const png_byte index = cell == picture::unset ? unset : static_cast<png_byte>(cell);
    for (int i = 0; i < job.scale; ++i) *to++ = index;
  }
}

void fill_colour_row(png_job& job, std::span<const std::int16_t> cells) {
  png_byte* to = job.row.data();
  for (const std::int16_t cell : cells) {
    const bool is_set = cell != picture::unset;
    const std::uint32_t colour = is_set ? job.colours[static_cast<std::size_t>(cell)] : 0;
    for (int i = 0; i < job.scale; ++i) {
      *to++ = static_cast<png_byte>(colour >> 16U);
      *to++ = static_cast<png_byte>(colour >> 8U);
      *to++ = static_cast<png_byte>(colour);
      *to++ = is_set ? 0xFF : 0;
    }
  }
}

void write_rows(png_structp png, png_job& job) {
  for (int row = 0; row < job.drawn.rows(); ++row) {
    if (job.form.is_indexed) {
      fill_indexed_row(job, job.drawn.row(row));
    } else {
      fill_colour_row(job, job.drawn.row(row));
    }
    for (int i = 0; i < job.scale; ++i) png_write_row(png, job.row.data());
  }
}

void write(png_structp png, png_infop info, png_job& job) {
  if (setjmp(png_jmpbuf(png)) != 0) return;  // NOLINT: how libpng reports a failure
  png_set_write_fn(png, &job, append_bytes, nullptr);
  const auto scaled = [&job](int cells) { return static_cast<png_uint_32>(cells * job.scale); };
  png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
  png_set_IHDR(png, info, scaled(job.drawn.columns()), scaled(job.drawn.rows()), 8,
               job.form.is_indexed ? PNG_COLOR_TYPE_PALETTE : PNG_COLOR_TYPE_RGB_ALPHA,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (job.form.is_indexed) set_palette(png, info, job);
  // Drawn pictures have few colours: differences of neighbours repeat less often than the pixels.
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  png_set_compression_level(png, compression_level);
  png_write_info(png, info);
  write_rows(png, job);
  png_write_end(png, info);
}

}  // namespace

std::string png_of(const picture& drawn, const rgb_palette& palette, const rgb_palette& distinct,
                   int scale) {
  const pixel_form form = form_of(drawn);
  png_job job = {.drawn = drawn,
                 .form = form,
                 .colours = form.is_indexed ? palette : distinct,
                 .scale = scale};
  const std::size_t pixel_bytes = job.form.is_indexed ? 1 : 4;
  job.row.resize(static_cast<std::size_t>(drawn.columns()) * static_cast<std::size_t>(scale) *
                 pixel_bytes);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &job, fail, ignore_warning);
  png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
  if (info == nullptr) throw std::bad_alloc();
  const struct writer_guard {
    png_structp png;
    png_infop info;
    ~writer_guard() { png_destroy_write_struct(&png, &info); }
  } at_end{png, info};
  write(png, info, job);
  if (!job.failure.empty()) throw data_error("A PNG cannot be made: " + job.failure + ".");
  return std::move(job.bytes);
}

}  // namespace ostrane
