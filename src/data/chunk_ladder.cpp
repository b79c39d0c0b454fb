#include "data/chunk_ladder.h"

#include <array>
#include <span>

namespace ostrane {

namespace {

constexpr std::int32_t largest_block = 8192;

struct rung {
  std::int32_t block;
  bool always_reports;
};

constexpr std::array<rung, 4> rungs = {
    {{largest_block, true}, {1024, true}, {128, false}, {8, false}}};

struct running_copy {
  files::binary_file& source;
  files::binary_file& destination;
  std::int16_t& small_block_bytes;
  const job_progress& progress;
  std::int32_t copied = 0;
  bool source_ended = false;
};

void copy_block(running_copy& copy, std::int32_t size) {
  auto left = static_cast<std::size_t>(size);
  while (left > 0 && !copy.source_ended) {
    const std::span<const std::byte> part = copy.source.next(left);
    copy.destination.write(part);
    left -= part.size();
    copy.source_ended = part.empty();
  }
  copy.copied += size - static_cast<std::int32_t>(left);
}

void count_small_block(running_copy& copy, std::int32_t size, std::int32_t value) {
  copy.small_block_bytes = static_cast<std::int16_t>(copy.small_block_bytes + size);
  if (copy.small_block_bytes <= 1024) return;
  copy.progress.on_bytes(value);
  copy.small_block_bytes = 0;
}

void copy_blocks(running_copy& copy, const rung& step, std::int32_t blocks) {
  for (std::int32_t i = 1; i <= blocks && !copy.source_ended; ++i) {
    if (step.always_reports) {
      copy.progress.on_bytes(i * step.block);
    } else {
      count_small_block(copy, step.block, i * step.block);
    }
    copy_block(copy, step.block);
  }
}

}  // namespace

std::int32_t chunk_ladder(files::binary_file& source, files::binary_file& destination,
                          std::int32_t amount, std::int16_t& small_block_bytes,
                          const job_progress& progress) {
  running_copy copy{source, destination, small_block_bytes, progress};
  std::int32_t remaining = amount;
  for (const rung& step : rungs) {
    if (remaining <= step.block) continue;
    const std::int32_t blocks = remaining / step.block;
    copy_blocks(copy, step, blocks);
    remaining -= blocks * step.block;
  }
  if (remaining > 0) copy_blocks(copy, {.block = 1, .always_reports = false}, remaining);
  return copy.copied;
}

}  // namespace ostrane
