#include "data/chunk_ladder.h"

#include <array>

namespace ostrane {

namespace {

constexpr std::array<std::int32_t, 4> block_sizes = {8192, 1024, 128, 8};
constexpr std::int32_t least_reported = 1024;  // blocks of this size and more are reported each

struct running_copy {
  files::binary_file& from;
  files::binary_file& to;
  std::int32_t amount;
  std::int16_t& small_block_bytes;
  const job_progress& progress;
  std::int32_t wanted = 0;  // bytes of the blocks so far
  std::int32_t copied = 0;
  bool source_ended = false;
};

void copy_at_least(running_copy& job, std::int32_t size) {
  job.wanted += size;
  while (job.copied < job.wanted && !job.source_ended) {
    const std::size_t count =
        job.to.write_from(job.from, static_cast<std::size_t>(job.amount - job.copied));
    job.copied += static_cast<std::int32_t>(count);
    job.source_ended = count == 0;
  }
}

void report_small_block(running_copy& job, std::int32_t size, std::int32_t value) {
  job.small_block_bytes = static_cast<std::int16_t>(job.small_block_bytes + size);
  if (job.small_block_bytes <= 1024) return;
  job.progress.on_bytes(value);
  job.small_block_bytes = 0;
}

void copy_blocks(running_copy& job, std::int32_t size, std::int32_t blocks) {
  for (std::int32_t i = 1; i <= blocks && !job.source_ended; ++i) {
    if (size >= least_reported) {
      job.progress.on_bytes(i * size);
    } else {
      report_small_block(job, size, i * size);
    }
    copy_at_least(job, size);
  }
}

}  // namespace

std::int32_t chunk_ladder(files::binary_file& from, files::binary_file& to, std::int32_t amount,
                          std::int16_t& small_block_bytes, const job_progress& progress) {
  running_copy job{from, to, amount, small_block_bytes, progress};
  std::int32_t remaining = amount;
  for (const std::int32_t size : block_sizes) {
    if (remaining <= size) continue;
    copy_blocks(job, size, remaining / size);
    remaining %= size;
  }
  if (remaining > 0) copy_blocks(job, 1, remaining);
  return job.copied;
}

}  // namespace ostrane
