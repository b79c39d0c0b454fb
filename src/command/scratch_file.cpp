#include "command/scratch_file.h"

#include "command/program.h"

namespace ostrane::command {

scratch_file::scratch_file(const std::u8string& shown)
    : path_{{}, shown}, file_(open_scratch(path_.system)) {
  if (file_ < 0) files::fail(u8"a temporary file", files::file_action::create, file_);
}

void scratch_file::clear() {
  const std::int64_t at = files::system_calls.seek_to(file_, 0);
  const std::int64_t status = at < 0 ? at : files::system_calls.set_size(file_, 0);
  if (status < 0) files::fail(u8"a temporary file", files::file_action::write, status);
}

void scratch_file::write(std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const std::int64_t moved = files::system_calls.write_some(file_, bytes.data(), bytes.size());
    if (moved <= 0) files::fail(u8"a temporary file", files::file_action::write, moved);
    bytes = bytes.subspan(static_cast<std::size_t>(moved));
  }
}

}  // namespace ostrane::command
