#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "data/icon_file.h"

namespace ostrane {

// The icon file with the old cells, in a file that is open.
class old_icons {
 public:
  old_icons(files::binary_file& file, icon_file from) : file_(file), from_(std::move(from)) {}

  const icon_file& icons() const { return from_; }
  files::binary_file& file() { return file_; }

  // Threads may call it.
  std::optional<picture> picture_at(std::size_t index) {
    if (index >= from_.positions.size()) return {};
    const std::lock_guard<std::mutex> one_at_a_time(mutex_);
    return read_stored_icon(*stream_, file_, from_, index).drawn;
  }

 private:
  files::binary_file& file_;
  icon_file from_;
  std::mutex mutex_;
  std::unique_ptr<icon_stream> stream_ = std::make_unique<icon_stream>();
};

}  // namespace ostrane
