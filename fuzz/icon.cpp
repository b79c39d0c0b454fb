// The input is an icon file. What is drawn must be what a plain reading of its bytes draws.
#include "archive_writer.h"
#include "browse.h"
#include "forms/forms.h"
#include "icons/shp_format.h"
#include "platform/user.h"
#include "state/tool_state.h"
#include "tool_on_drives.h"

namespace fuzz = ostrane::fuzz;
using namespace ostrane;

namespace {

constexpr std::int16_t unset = -1;

// The palette indices of a picture, row by row, as `stream` paints them.
std::vector<std::int16_t> draw(const icon_head& head, std::string_view stream, std::int64_t columns,
                               std::int64_t rows) {
  std::vector<std::int16_t> drawn(static_cast<std::size_t>(columns * rows), unset);
  std::int64_t x = head.col_start;
  std::int64_t y = head.row_start;
  const auto take = [&stream] {
    const auto byte = static_cast<std::uint8_t>(stream.front());
    stream.remove_prefix(1);
    return byte;
  };
  const auto paint = [&](std::uint8_t index) {
    const bool inside = x >= 0 && x < columns && y >= 0 && y < rows;
    if (inside) drawn[static_cast<std::size_t>(y * columns + x)] = index;
    ++x;
  };
  while (y <= head.row_end && !stream.empty()) {
    const unsigned op = take();
    if (op == 0) {
      x = head.col_start;
      ++y;
    } else if (op == 1) {
      x += stream.empty() ? 0 : take();
    } else if (op % 2 == 0) {
      const std::string_view colour = stream.substr(0, 1);
      for (unsigned i = 0; i < op / 2 && !colour.empty(); ++i)
        paint(static_cast<std::uint8_t>(colour[0]));
      stream.remove_prefix(colour.size());
    } else {
      for (unsigned i = 0; i < op / 2 && !stream.empty(); ++i) paint(take());
    }
  }
  return drawn;
}

void compare(const platform::picture_box& slot, const std::vector<std::int16_t>& wanted) {
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const auto at = static_cast<std::int32_t>(i);
    const platform::colour there = slot.pixel(at % slot.columns(), at / slot.columns());
    fuzz::check(there == (wanted[i] == unset
                              ? platform::picture_box::unset
                              : tool_state.colour_table[static_cast<std::size_t>(wanted[i])]),
                "an icon shows what its bytes say");
  }
}

// Slots stand for icons one to one. Large ones take too long to look at, pixel by pixel.
void compare_first_series(std::string_view archive, std::size_t entry_end) {
  for (std::int32_t n = 1; n <= tool_state.slots_drawn; ++n) {
    platform::picture_box& slot = Form1.s16_image(n);
    const auto at = tool_state.icon_positions[static_cast<std::size_t>(n)] - 1;
    if (!slot.Visible() || at < 0 || slot.rows() * slot.columns() > 4096) continue;
    const auto from = static_cast<std::size_t>(at);
    const auto bytes = std::as_bytes(std::span(archive));
    const icon_head head = decode_icon_head(bytes.subspan(from).first<icon_head_size>());
    if (judge_icon(head) != icon_outcome::drawable) continue;
    // The entry's bytes count from the head's second byte, so 23 of the next entry's belong to it.
    const std::size_t budget = entry_end > from + 1 ? entry_end - from - 1 : 0;
    compare(slot,
            draw(head, archive.substr(from + icon_head_size, budget), slot.columns(), slot.rows()));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::begin();
  const std::string input(fuzz::text_of(data, size));
  const std::string archive =
      samples::archive_file({{"F.SHP", input}, {"N.TXT", std::string(64, '\3')}});
  fuzz::open_archive_of(archive);
  platform::user::select_row(Form1.List1, 0);
  compare_first_series(archive, archive.size() - 64);
  fuzz::browse(0, 30);
  fuzz::check_memory(fuzz::memory_for_pictures, size);
  return 0;
}
