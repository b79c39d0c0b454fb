#include "palette/palette_store.h"

#include <array>

#include "archive/open_archive.h"
#include "files/failure.h"
#include "palette/built_in_colours.h"
#include "state/files.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// The bytes that are there, at most 1024.
std::size_t read_palette_bytes(std::span<std::byte> bytes) {
  std::size_t got = 0;
  files::failure_of([&] {
    open_archive_file(file_1);
    file_1.seek(tool_state.game_pal_offset);
    got = file_1.read(bytes);
  });
  file_1.close();
  return got;
}

}  // namespace

void set_default_palette() {
  for (std::size_t i = 0; i < built_in_colours.size(); ++i) {
    const std::uint32_t rgb = built_in_colours[i];
    tool_state.colour_table[i] = forms_layer::rgb(rgb >> 16U, rgb >> 8U & 0xFFU, rgb & 0xFFU);
  }
}

void read_game_palette() {
  if (tool_state.game_pal_offset <= 0) return;
  std::array<std::byte, palette_colours * colour_size> bytes;
  const std::size_t whole_colours = read_palette_bytes(bytes) / colour_size;
  for (std::size_t i = 0; i < whole_colours; ++i) {
    auto& stored = tool_state.stored_palette[i];
    for (std::size_t j = 0; j < colour_size; ++j) {
      stored[j] = std::to_integer<std::uint8_t>(bytes[colour_size * i + j]);
    }
    tool_state.colour_table[i] = forms_layer::rgb(stored[2], stored[1], stored[0]);
  }
}

}  // namespace ostrane
