#include "files/scratch_file.h"

#include <cerrno>

namespace files {

scratch_file::scratch_file(const std::u8string& shown)
    : path_{{}, shown}, file_(open_scratch(path_.system)) {
  if (file_ < 0) fail(u8"a temporary file", file_action::create, file_);
}

void scratch_file::rewind() {
  const std::int64_t at = system_calls.seek_to(file_, 0);
  if (at < 0) fail(u8"a temporary file", file_action::write, at);
}

void scratch_file::write(std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const std::int64_t moved = system_calls.write_some(file_, bytes.data(), bytes.size());
    if (moved <= 0) {
      fail(u8"a temporary file", file_action::write, moved == 0 ? -EIO : static_cast<int>(moved));
    }
    bytes = bytes.subspan(static_cast<std::size_t>(moved));
  }
}

}  // namespace files
