#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace ostrane {

// What a job on many files tells on its way.
struct job_progress {
  // The file of this 0-based number comes next; `size` is in bytes.
  std::function<void(std::size_t index, const std::string& name, std::int32_t size)> on_file;
  // How far it is, in bytes of the part that is copied in blocks of one size.
  std::function<void(std::int32_t value)> on_bytes;
};

}  // namespace ostrane
