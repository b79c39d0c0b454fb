#include "data/game_file.h"

#include "data/data_error.h"
#include "data/palette.h"

namespace ostrane {

void read_game_file(game_file& game, const files::file_path& path) {
  game.file.open_to_read(path);
  try {
    game.index = read_archive_index(game.file, path);
  } catch (const archive_changed&) {
    throw;
  } catch (const data_error&) {
    game.index = {};
  }
  if (is_sound(game.index) || find_game_palette(game.index.records) != nullptr) {
    game.colours = read_game_colours(game.file, game.index.records);
    require_unchanged(game.file, game.index.stamp, "import");
    return;
  }
  game.index = {};
  if (game.file.size() < std::int64_t{palette_colours * colour_size}) {
    throw data_error(path.shown, "is neither an archive nor a palette, which has 1024 bytes.");
  }
  game.colours = read_colours(game.file, 0);
}

}  // namespace ostrane
