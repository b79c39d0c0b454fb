#include "pictures/gif_reader.h"

#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "data/data_error.h"
#include "data/icon_file.h"

namespace ostrane {

namespace {

struct gif_job {
  std::string_view bytes;
  const std::u8string& shown;
  colour_finder& colours;
  GifFileType* gif = nullptr;
  std::size_t at = 0;
  GraphicsControlBlock control = {0, false, 0, NO_TRANSPARENT_COLOR};  // of the next frame
  picture screen{0, 0};
  std::vector<picture> shows = {};
};

[[noreturn]] void fail(const gif_job& job, const std::string& reason) {
  throw data_error(job.shown, "cannot be read as a GIF: " + reason + ".");
}

void require(const gif_job& job, int status) {
  if (status == GIF_OK) return;
  const char* text = GifErrorString(job.gif->Error);
  fail(job, text == nullptr ? "it is damaged" : text);
}

int read_bytes(GifFileType* gif, GifByteType* to, int count) {
  auto* job = static_cast<gif_job*>(gif->UserData);
  const std::size_t part = std::min(static_cast<std::size_t>(count), job->bytes.size() - job->at);
  std::memcpy(to, job->bytes.data() + job->at, part);
  job->at += part;
  return static_cast<int>(part);
}

void read_extension(gif_job& job) {
  int code = 0;
  GifByteType* block = nullptr;
  require(job, DGifGetExtension(job.gif, &code, &block));
  while (block != nullptr) {
    if (code == GRAPHICS_EXT_FUNC_CODE) DGifExtensionToGCB(block[0], block + 1, &job.control);
    require(job, DGifGetExtensionNext(job.gif, &block));
  }
}

std::array<std::int16_t, 256> cells_of_indices(const gif_job& job) {
  const ColorMapObject* map = job.gif->Image.ColorMap;
  if (map == nullptr) map = job.gif->SColorMap;
  if (map == nullptr) fail(job, "it has no colours");
  std::vector<palette_entry> entries;
  for (int i = 0; i < map->ColorCount; ++i) {
    const GifColorType& colour = map->Colors[i];
    entries.push_back(
        {static_cast<std::uint32_t>(colour.Red << 16 | colour.Green << 8 | colour.Blue),
         i == job.control.TransparentColor ? 0 : 0xFF});
  }
  return marked_indices(entries, job.colours);
}

// Calls `paint` for each line in the order of the file, with its row in the frame.
template <typename Paint>
void for_each_line(const gif_job& job, const Paint& paint) {
  const GifImageDesc& frame = job.gif->Image;
  std::vector<GifPixelType> line(static_cast<std::size_t>(std::max(frame.Width, 1)));
  const auto pass = [&](int first, int step) {
    for (int row = first; row < frame.Height; row += step) {
      require(job, DGifGetLine(job.gif, line.data(), frame.Width));
      paint(row, line);
    }
  };
  if (!frame.Interlace) return pass(0, 1);
  pass(0, 8);
  pass(4, 8);
  pass(2, 4);
  pass(1, 2);
}

// The part of a row of the screen that the frame covers.
std::span<std::int16_t> covered(gif_job& job, int row) {
  const GifImageDesc& frame = job.gif->Image;
  if (frame.Top + row >= job.screen.rows()) return {};
  const int left = std::min(frame.Left, job.screen.columns());
  const int right = std::min(frame.Left + frame.Width, job.screen.columns());
  return job.screen.row(frame.Top + row)
      .subspan(static_cast<std::size_t>(left), static_cast<std::size_t>(right - left));
}

// Prepares the screen for the next frame. `before` is what it was before this one.
void dispose_frame(gif_job& job, const picture& before) {
  if (job.control.DisposalMode == DISPOSE_PREVIOUS) job.screen = before;
  for (int row = 0; job.control.DisposalMode == DISPOSE_BACKGROUND && row < job.gif->Image.Height;
       ++row) {
    const auto to = covered(job, row);
    std::fill(to.begin(), to.end(), picture::unset);
  }
  job.control = {0, false, 0, NO_TRANSPARENT_COLOR};
}

void read_frame(gif_job& job) {
  require(job, DGifGetImageDesc(job.gif));
  const std::int64_t cells = std::int64_t{job.screen.columns()} * job.screen.rows();
  const auto count = static_cast<std::int64_t>(job.shows.size()) + 1;
  if (count > max_icons_per_file || count * cells > max_picture_cells) {
    fail(job, "it has more than " + std::to_string(max_icons_per_file) +
                  " pictures, or more than " + std::to_string(max_picture_cells) +
                  " pixels in them together");
  }
  const auto map = cells_of_indices(job);
  const int transparent = job.control.TransparentColor;
  const picture before = job.screen;
  for_each_line(job, [&](int row, const std::vector<GifPixelType>& line) {
    const auto to = covered(job, row);
    for (std::size_t i = 0; i < to.size(); ++i) {
      if (line[i] != transparent) to[i] = map[line[i]];
    }
  });
  job.shows.push_back(job.screen);
  dispose_frame(job, before);
}

void read_all(gif_job& job) {
  const std::int64_t cells = std::int64_t{job.gif->SWidth} * job.gif->SHeight;
  if (cells < 1 || cells > max_picture_cells) {
    fail(job, "its pictures have no pixels, or more than " + std::to_string(max_picture_cells));
  }
  job.screen = picture(job.gif->SWidth, job.gif->SHeight);
  for (GifRecordType type = UNDEFINED_RECORD_TYPE; type != TERMINATE_RECORD_TYPE;) {
    require(job, DGifGetRecordType(job.gif, &type));
    if (type == IMAGE_DESC_RECORD_TYPE) read_frame(job);
    if (type == EXTENSION_RECORD_TYPE) read_extension(job);
  }
}

}  // namespace

std::vector<picture> read_gif(std::string_view bytes, const std::u8string& shown,
                              colour_finder& colours) {
  gif_job job = {.bytes = bytes, .shown = shown, .colours = colours};
  int reason = 0;
  job.gif = DGifOpen(&job, read_bytes, &reason);
  if (job.gif == nullptr) fail(job, "it is not a GIF");
  const auto close = [](GifFileType* gif) { DGifCloseFile(gif, nullptr); };
  const std::unique_ptr<GifFileType, decltype(close)> at_end(job.gif, close);
  read_all(job);
  return std::move(job.shows);
}

}  // namespace ostrane
