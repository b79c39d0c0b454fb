#include "palette/palette_store.h"

#include "data/game_palette.h"
#include "data/palette.h"
#include "state/open_archive.h"

namespace ostrane {

void set_default_palette() {
  for (std::size_t i = 0; i < built_in_colours.size(); ++i) {
    const std::uint32_t rgb = built_in_colours[i];
    tool_state.colour_table[i] = forms_layer::rgb(rgb >> 16U, rgb >> 8U & 0xFFU, rgb & 0xFFU);
  }
}

void read_game_palette() {
  if (tool_state.game_pal_offset <= 0) return;
  std::size_t count = 0;
  static_cast<void>(read_open_archive([&count] {
    count = read_palette(tool_state.archive_file, tool_state.game_pal_offset,
                         tool_state.stored_palette);
  }));
  for (std::size_t i = 0; i < count; ++i) {
    const stored_colour& stored = tool_state.stored_palette[i];
    tool_state.colour_table[i] = forms_layer::rgb(stored[2], stored[1], stored[0]);
  }
}

}  // namespace ostrane
