#include "data/palette.h"

namespace ostrane {

std::size_t read_palette(files::binary_file& file, std::int32_t offset, stored_palette& palette) {
  std::array<std::byte, palette_colours * colour_size> bytes;
  file.seek(offset);
  const std::size_t count = file.read(bytes) / colour_size;
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t part = 0; part < colour_size; ++part) {
      palette[i][part] = std::to_integer<std::uint8_t>(bytes[colour_size * i + part]);
    }
  }
  return count;
}

}  // namespace ostrane
