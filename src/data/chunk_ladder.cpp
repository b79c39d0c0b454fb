#include "data/chunk_ladder.h"

#include <array>

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

void copy_blocks(running_copy& job, const rung& step, std::int32_t blocks) {
  for (std::int32_t i = 1; i <= blocks && !job.source_ended; ++i) {
    if (step.always_reports) {
      job.progress.on_bytes(i * step.block);
    } else {
      report_small_block(job, step.block, i * step.block);
    }
    copy_at_least(job, step.block);
  }
}

}  // namespace

std::int32_t chunk_ladder(files::binary_file& from, files::binary_file& to, std::int32_t amount,
                          std::int16_t& small_block_bytes, const job_progress& progress) {
  running_copy job{from, to, amount, small_block_bytes, progress};
  std::int32_t remaining = amount;
  for (const rung& step : rungs) {
    if (remaining <= step.block) continue;
    const std::int32_t blocks = remaining / step.block;
    copy_blocks(job, step, blocks);
    remaining -= blocks * step.block;
  }
  if (remaining > 0) copy_blocks(job, {.block = 1, .always_reports = false}, remaining);
  return job.copied;
}

}  // namespace ostrane
