#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace ostrane {

// Progress callbacks of a job on many files.
struct job_progress {
  // Called before each file with its 0-based index and its size in bytes.
  std::function<void(std::size_t index, const std::string& name, std::int32_t size)> on_file;
  // Called with the bytes of the part that is copied in blocks of the current size.
  std::function<void(std::int32_t value)> on_bytes;
};

}  // namespace ostrane
