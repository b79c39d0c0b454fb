#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Little-endian numbers, as in all files of the game. `at` is a byte offset; all bytes of the
// number must lie within `bytes`.
namespace files {

inline std::int16_t int16_at(std::span<const std::byte> bytes, std::size_t at) {
  return static_cast<std::int16_t>(std::to_integer<unsigned>(bytes[at]) |
                                   std::to_integer<unsigned>(bytes[at + 1]) << 8U);
}

inline std::int32_t int32_at(std::span<const std::byte> bytes, std::size_t at) {
  const auto four = bytes.subspan(at).first<4>();  // one check of the bounds
  return static_cast<std::int32_t>(std::to_integer<std::uint32_t>(four[0]) |
                                   std::to_integer<std::uint32_t>(four[1]) << 8U |
                                   std::to_integer<std::uint32_t>(four[2]) << 16U |
                                   std::to_integer<std::uint32_t>(four[3]) << 24U);
}

inline void put_int32(std::span<std::byte> bytes, std::size_t at, std::int32_t value) {
  const auto bits = static_cast<std::uint32_t>(value);
  for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::byte>(bits >> 8U * i);
}

}  // namespace files
