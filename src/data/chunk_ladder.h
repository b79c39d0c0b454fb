#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "data/job_progress.h"

namespace ostrane {

// Copies at most `max` bytes and returns how many, 0 at the end of the source. Throws file_error.
using copy_step = std::function<std::size_t(std::size_t max)>;

// Copies `amount` bytes by `copy` and reports them in blocks of 8192, 1024, 128, 8 and 1 bytes. A
// block size is used if more than one block of it remains. `progress.on_bytes` is called before
// each block of the two large sizes. `copy` may copy several blocks in one step.
//
// `small_block_bytes` counts the bytes copied in blocks of 128 and less. When it exceeds 1024,
// `on_bytes` is called and the count restarts at 0. The caller keeps or clears it between copies.
//
// Returns the number of bytes copied, which is less than `amount` if the source ends early. Throws
// file_error.
std::int32_t chunk_ladder(const copy_step& copy, std::int32_t amount,
                          std::int16_t& small_block_bytes, const job_progress& progress);

}  // namespace ostrane
