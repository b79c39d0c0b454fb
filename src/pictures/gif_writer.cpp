#include "pictures/gif_writer.h"

#include <gif_lib.h>

#include <algorithm>
#include <memory>

#include "data/colour_finder.h"
#include "data/data_error.h"
#include "data/pixel_form.h"

namespace ostrane {

namespace {

constexpr int max_side = 65535;

struct gif_job {
  GifFileType* gif;
  const rgb_palette& palette;
  int pace;
  int scale;
  std::int64_t& inexact;
};

[[noreturn]] void fail(int reason) {
  const char* text = GifErrorString(reason);
  throw data_error(std::string("A GIF cannot be made: ") + (text == nullptr ? "" : text) + ".");
}

void require(const gif_job& job, int status) {
  if (status != GIF_OK) fail(job.gif->Error);
}

int append_bytes(GifFileType* gif, const GifByteType* bytes, int count) {
  static_cast<std::string*>(gif->UserData)
      ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
  return count;
}

// The new index for each index, and the one for unset cells, if there are any.
struct frame_indices {
  std::array<std::uint8_t, 256> new_index = {};
  int unset = NO_TRANSPARENT_COLOR;
  std::int64_t inexact = 0;  // cells with another colour
};

frame_indices indices_of(const gif_job& job, const picture& drawn) {
  frame_indices indices;
  for (std::size_t i = 0; i < indices.new_index.size(); ++i) {
    indices.new_index[i] = static_cast<std::uint8_t>(i);
  }
  const pixel_form form = form_of(drawn);
  if (form.unset_index) indices.unset = *form.unset_index;
  if (form.is_indexed) return indices;
  // All 256 indices are used and unset cells need one, so the rarest one is merged.
  std::array<std::int64_t, 256> uses = {};
  for (int row = 0; row < drawn.rows(); ++row) {
    for (const std::int16_t cell : drawn.row(row)) {
      if (cell != picture::unset) ++uses[static_cast<std::size_t>(cell)];
    }
  }
  const auto rarest =
      static_cast<std::size_t>(std::min_element(uses.begin(), uses.end()) - uses.begin());
  indices.new_index[rarest] = nearest_index(job.palette, job.palette[rarest], rarest);
  indices.unset = static_cast<int>(rarest);
  indices.inexact = uses[rarest];
  return indices;
}

void put_frame(const gif_job& job, const picture& drawn) {
  const frame_indices indices = indices_of(job, drawn);
  job.inexact += indices.inexact;
  const GraphicsControlBlock control = {.DisposalMode = DISPOSE_BACKGROUND,
                                        .UserInputFlag = false,
                                        .DelayTime = job.pace,
                                        .TransparentColor = indices.unset};
  std::array<GifByteType, 4> extension = {};
  EGifGCBToExtension(&control, extension.data());
  require(job,
          EGifPutExtension(job.gif, GRAPHICS_EXT_FUNC_CODE, extension.size(), extension.data()));
  const int width = drawn.columns() * job.scale;
  require(job, EGifPutImageDesc(job.gif, 0, 0, width, drawn.rows() * job.scale, false, nullptr));
  std::vector<GifPixelType> line(static_cast<std::size_t>(width));
  for (int row = 0; row < drawn.rows() * job.scale; ++row) {
    for (int column = 0; column < width; ++column) {
      const std::int16_t cell = drawn.at(column / job.scale, row / job.scale);
      line[static_cast<std::size_t>(column)] = static_cast<GifPixelType>(
          cell == picture::unset ? indices.unset
                                 : indices.new_index[static_cast<std::size_t>(cell)]);
    }
    std::vector<GifPixelType> scratch = line;  // giflib writes into it
    require(job, EGifPutLine(job.gif, scratch.data(), width));
  }
}

void put_all(const gif_job& job, const std::vector<picture>& pictures) {
  int width = 1;
  int height = 1;
  for (const picture& drawn : pictures) {
    width = std::max(width, drawn.columns());
    height = std::max(height, drawn.rows());
  }
  if (width > max_side / job.scale || height > max_side / job.scale) {
    throw data_error("A GIF cannot be made: its sides would be longer than 65535 pixels.");
  }
  std::array<GifColorType, 256> colours = {};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const std::uint32_t colour = job.palette[i];
    colours[i] = {static_cast<GifByteType>(colour >> 16U), static_cast<GifByteType>(colour >> 8U),
                  static_cast<GifByteType>(colour)};
  }
  const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
      GifMakeMapObject(static_cast<int>(colours.size()), colours.data()), GifFreeMapObject);
  EGifSetGifVersion(job.gif, true);
  require(job, EGifPutScreenDesc(job.gif, width * job.scale, height * job.scale, 8, 0, map.get()));
  for (const picture& drawn : pictures) put_frame(job, drawn);
}

}  // namespace

std::string gif_of(const std::vector<picture>& pictures, const rgb_palette& palette, int pace,
                   int scale, std::int64_t& inexact) {
  std::string bytes;
  int reason = 0;
  GifFileType* gif = EGifOpen(&bytes, append_bytes, &reason);
  if (gif == nullptr) fail(reason);
  try {
    put_all({gif, palette, pace, scale, inexact}, pictures);
  } catch (...) {
    EGifCloseFile(gif, nullptr);
    throw;
  }
  if (EGifCloseFile(gif, &reason) != GIF_OK) fail(reason);
  return bytes;
}

}  // namespace ostrane
