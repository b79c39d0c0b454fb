#pragma once

#include <cstdint>

#include "files/binary_file.h"

namespace ostrane {

// Copies `amount` bytes from where the source stands to where the destination stands, in blocks of
// 8192, 1024, 128, 8 and 1 bytes, and moves `ProgressBar1` of `Form3`, whose range the caller has
// set. A block size is taken while more than one block of it is left.
//
// `small_block_bytes` counts the bytes of blocks of 128 and less; past 1024 the bar moves and the
// count starts again. The caller keeps it from copy to copy or clears it.
//
// Gives the number of bytes copied: less than the amount if the source ended before. Throws
// file_error if the system fails.
std::int32_t chunk_ladder(files::binary_file& source, files::binary_file& destination,
                          std::int32_t amount, std::int16_t& small_block_bytes);

}  // namespace ostrane
