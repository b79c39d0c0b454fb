#pragma once

#include <cstdint>
#include <span>

#include "data/shp_format.h"
#include "files/binary_file.h"

namespace ostrane {

// Reads the head of an icon file at a file offset. Returns false if the file ends before it does
// or the offset is negative.
bool read_shp_head(files::binary_file& file, std::int32_t entry_offset, shp_head& head);

// Reads the directory at the current position. Sets `positions` to the 1-based file positions of
// the icons, 0 for an icon whose directory entry is past the end of the file.
void read_icon_positions(files::binary_file& file, std::int32_t entry_offset,
                         std::span<std::int32_t> positions);

// Reads the head of an icon at its 1-based position and leaves the file at the first byte of the
// stream. Returns false if the file ends before it does or the position is not positive.
bool read_icon_head(files::binary_file& file, std::int32_t icon_position, icon_head& head);

// Returns the limit of bytes read from a stream, which is far more than a picture needs.
std::int64_t max_stream_bytes(const icon_head& head);

// Returns the number of bytes to read of the stream of an icon whose head was read. `entry_end` is
// the file offset after the entry.
std::int32_t stream_size(const icon_head& head, std::int32_t icon_position, std::int32_t entry_end);

}  // namespace ostrane
