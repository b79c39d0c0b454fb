#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace ostrane {

// Progress callbacks of a job on many files. Those not given do nothing.
struct job_progress {
  // A build calls it before it opens the file of an entry.
  std::function<void(std::size_t index, std::int32_t size)> before_file = [](auto&&...) {};
  // Called before each file is copied, with its 0-based index and its size in bytes.
  std::function<void(std::size_t index, const std::string& name, std::int32_t size)> on_file =
      [](auto&&...) {};
  // Called with the bytes copied in blocks of the current size. With each smaller size the count
  // starts again, so the bar moves back.
  std::function<void(std::int32_t value)> on_bytes = [](auto&&...) {};
};

}  // namespace ostrane
