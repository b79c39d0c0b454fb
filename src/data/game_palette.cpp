#include "data/game_palette.h"

#include <algorithm>

#include "data/palette.h"
#include "files/code_page.h"
#include "files/text.h"

namespace ostrane {

namespace {

// The first letter rejects most names before a string is made.
bool is_game_palette(const dat_record& record) {
  const auto* const first = std::find_if(record.name.begin(), record.name.end(),
                                         [](char c) { return c != '\0' && c != ' '; });
  if (first == record.name.end() || files::upper_case(*first) != 'G') return false;
  return files::compare_key(name_without_nuls(record.name)) == "GAME.PAL";
}

}  // namespace

rgb_palette read_colours(files::binary_file& file, std::int32_t offset) {
  rgb_palette colours = built_in_colours;
  stored_palette stored = {};
  const std::size_t count = offset < 0 ? 0 : read_palette(file, offset, stored);
  for (std::size_t i = 0; i < count; ++i) {
    colours[i] =
        static_cast<std::uint32_t>(stored[i][2] << 16U | stored[i][1] << 8U | stored[i][0]);
  }
  return colours;
}

const dat_record* find_game_palette(std::span<const dat_record> records) {
  const auto found = std::find_if(records.rbegin(), records.rend(), is_game_palette);
  return found == records.rend() ? nullptr : &*found;
}

rgb_palette read_game_colours(files::binary_file& archive, std::span<const dat_record> records) {
  const dat_record* const found = find_game_palette(records);
  return found == nullptr || found->offset <= 0 ? built_in_colours
                                                : read_colours(archive, found->offset);
}

}  // namespace ostrane
