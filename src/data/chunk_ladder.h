#pragma once

#include <cstdint>

#include "data/job_progress.h"
#include "files/binary_file.h"

namespace ostrane {

// Copies `amount` bytes from where the source stands to where the destination stands, in blocks of
// 8192, 1024, 128, 8 and 1 bytes. A block size is taken while more than one block of it is left.
// Each block of the two large sizes is told before it is copied.
//
// `small_block_bytes` counts the bytes of blocks of 128 and less; past 1024 the block is told and
// the count starts again. The caller keeps it from copy to copy or clears it.
//
// Returns the number of bytes copied: less than the amount if the source ended before. Throws
// file_error if the system fails.
std::int32_t chunk_ladder(files::binary_file& source, files::binary_file& destination,
                          std::int32_t amount, std::int16_t& small_block_bytes,
                          const job_progress& progress);

}  // namespace ostrane
