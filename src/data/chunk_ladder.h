#pragma once

#include <cstdint>

#include "data/job_progress.h"
#include "files/binary_file.h"

namespace ostrane {

// Copies `amount` bytes from the current position of the source to that of the destination, in
// blocks of 8192, 1024, 128, 8 and 1 bytes. A block size is used if more than one block of it
// remains. `progress.on_bytes` is called before each block of the two large sizes.
//
// `small_block_bytes` counts the bytes copied in blocks of 128 and less. When it exceeds 1024,
// `on_bytes` is called and the count restarts at 0. The caller keeps or clears it between copies.
//
// Returns the number of bytes copied, which is less than `amount` if the source ends early. Throws
// file_error.
std::int32_t chunk_ladder(files::binary_file& source, files::binary_file& destination,
                          std::int32_t amount, std::int16_t& small_block_bytes,
                          const job_progress& progress);

}  // namespace ostrane
