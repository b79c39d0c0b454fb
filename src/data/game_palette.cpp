#include "data/game_palette.h"

#include "data/built_in_colours.h"
#include "data/palette.h"
#include "files/text.h"

namespace ostrane {

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

rgb_palette read_game_colours(files::binary_file& archive, std::span<const dat_record> records) {
  for (std::size_t i = records.size(); i > 0; --i) {
    const dat_record& record = records[i - 1];
    if (files::compare_key(name_without_nuls(record.name)) == "GAME.PAL") {
      return read_colours(archive, record.offset);
    }
  }
  return built_in_colours;
}

}  // namespace ostrane
