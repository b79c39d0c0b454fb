#pragma once

#include "data/archive_index.h"
#include "data/game_palette.h"

namespace ostrane {

// An archive or a palette.
struct game_file {
  files::binary_file file = {};
  archive_index index = {};  // without records if it is no archive
  rgb_palette colours = {};
};

// Opens a file and reads its colours. A palette has no mark of its own, so an archive is told by
// its index. Throws data_error if the file is neither, and file_error.
void read_game_file(game_file& game, const files::file_path& path);

}  // namespace ostrane
