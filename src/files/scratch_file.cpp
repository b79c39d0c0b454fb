#include "files/scratch_file.h"

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
  write_all(file_, bytes, u8"a temporary file");
}

}  // namespace files
