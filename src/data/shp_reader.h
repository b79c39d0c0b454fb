#pragma once

#include <cstdint>
#include <span>

#include "data/icon_stream.h"
#include "data/shp_format.h"

namespace ostrane {

// Reads the head of an icon file at a file offset. False if the file has no such bytes.
bool read_shp_head(files::binary_file& file, std::int32_t entry_offset, shp_head& head);

// Reads the directory, on which the file must stand, into `positions`: the 1-based file position of
// each icon, 0 for one that has no directory entry in the file.
void read_icon_positions(files::binary_file& file, std::int32_t entry_offset,
                         std::span<std::int32_t> positions);

// Reads the head of an icon at its position; the file then stands on the first byte of the stream.
// False if the file has no such bytes.
bool read_icon_head(files::binary_file& file, std::int32_t icon_position, icon_head& head);

// What is read of a stream at most: far more bytes than a picture has use for.
std::int64_t max_stream_bytes(const icon_head& head);

// Empties the buffer and sets `entry_bytes_left` for an icon whose head was read. `entry_end` is
// the file offset after the entry.
void begin_stream(icon_stream& stream, const icon_head& head, std::int32_t icon_position,
                  std::int32_t entry_end);

}  // namespace ostrane
