#pragma once

#include <cstdint>

#include "data/job_progress.h"
#include "files/binary_file.h"

namespace ostrane {

// Copies `amount` bytes between two open files and reports them in blocks of 8192, 1024, 128, 8 and
// 1 bytes. A block size is used if more than one block of it remains. `progress.on_bytes` is called
// before each block of the two large sizes. One read may copy several blocks.
//
// `small_block_bytes` counts the bytes copied in blocks of 128 and less. When it exceeds 1024,
// `on_bytes` is called and the count restarts at 0. The caller keeps or clears it between copies.
//
// Returns the number of bytes copied, which is less than `amount` if the source ends early. Throws
// file_error.
std::int32_t chunk_ladder(files::binary_file& from, files::binary_file& to, std::int32_t amount,
                          std::int16_t& small_block_bytes, const job_progress& progress);

}  // namespace ostrane
