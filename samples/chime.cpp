#include "chime.h"

#include <cmath>
#include <cstdint>

#include "space.h"

namespace ostrane::samples {
namespace {

constexpr std::uint32_t rate = 8000;
constexpr std::uint32_t length = 6000;

std::string number(std::uint32_t value, unsigned bytes) {
  std::string text;
  for (unsigned i = 0; i < bytes; ++i) text += static_cast<char>(value >> 8U * i & 0xFFU);
  return text;
}

char sample_at(std::uint32_t n) {
  const double seconds = static_cast<double>(n) / rate;
  double sum = 0;
  for (const double overtone : {1.0, 2.0, 3.01, 4.2}) {
    sum +=
        std::sin(2 * pi * 660 * overtone * seconds) * std::exp(-5 * overtone * seconds) / overtone;
  }
  return static_cast<char>(std::lround(128 + 56 * sum));
}

}  // namespace

std::string chime() {
  std::string samples;
  for (std::uint32_t n = 0; n < length; ++n) samples += sample_at(n);
  const std::string format =
      number(1, 2) + number(1, 2) + number(rate, 4) + number(rate, 4) + number(1, 2) + number(8, 2);
  return "RIFF" + number(36 + length, 4) + "WAVEfmt " + number(16, 4) + format + "data" +
         number(length, 4) + samples;
}

}  // namespace ostrane::samples
