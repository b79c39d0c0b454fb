#pragma once

#include <cstdint>

#include "data/job_progress.h"
#include "files/binary_file.h"

namespace ostrane {

// Copies `amount` bytes from the current position of the source to that of the destination, in
// blocks of 8192, 1024, 128, 8 and 1 bytes. A block size is used while more than one such block is
// left. Each block of the two large sizes is reported before it is copied.
//
// `small_block_bytes` counts the bytes of blocks of 128 bytes and less. When it exceeds 1024, the
// block is reported and the count is reset. The caller keeps it between copies or clears it.
//
// Returns the number of bytes copied, which is less than `amount` if the source ended. Throws
// file_error.
std::int32_t chunk_ladder(files::binary_file& source, files::binary_file& destination,
                          std::int32_t amount, std::int16_t& small_block_bytes,
                          const job_progress& progress);

}  // namespace ostrane
