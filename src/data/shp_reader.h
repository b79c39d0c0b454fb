#pragma once

#include <cstdint>
#include <span>

#include "data/icon_stream.h"
#include "data/shp_format.h"

namespace ostrane {

// Reads the head of an icon file at a file offset. Returns false if the file ends before.
bool read_shp_head(files::binary_file& file, std::int32_t entry_offset, shp_head& head);

// Reads the directory at the current position into `positions`: the 1-based file position of each
// icon, or 0 if its directory entry is not in the file.
void read_icon_positions(files::binary_file& file, std::int32_t entry_offset,
                         std::span<std::int32_t> positions);

// Reads the head of an icon. The file is then positioned at the first byte of the stream. Returns
// false if the file ends before.
bool read_icon_head(files::binary_file& file, std::int32_t icon_position, icon_head& head);

// The limit for the bytes of a stream, far more than a picture needs.
std::int64_t max_stream_bytes(const icon_head& head);

// Empties the buffer and sets `entry_bytes_left` for an icon whose head was read. `entry_end` is
// the file offset after the entry.
void begin_stream(icon_stream& stream, const icon_head& head, std::int32_t icon_position,
                  std::int32_t entry_end);

}  // namespace ostrane
