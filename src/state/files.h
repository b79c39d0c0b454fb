#pragma once

#include "files/binary_file.h"

namespace ostrane {

// The files that a command holds open, by number: 1 to read or report, 5 and 6 for the two ends of
// a copy. None stays open between two commands.
extern files::binary_file file_1;
extern files::binary_file file_5;
extern files::binary_file file_6;

}  // namespace ostrane
