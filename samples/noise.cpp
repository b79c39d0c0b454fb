#include "noise.h"

#include <cmath>

namespace ostrane::samples {
namespace {

double smooth(double t) { return t * t * (3 - 2 * t); }

}  // namespace

double scatter(int x, int y, int z, std::uint32_t seed) {
  std::uint32_t h = seed * 0x9E3779B1U;
  for (const int n : {x, y, z}) {
    h = (h ^ static_cast<std::uint32_t>(n)) * 0x85EBCA6BU;
    h ^= h >> 15U;
    h *= 0xC2B2AE35U;
    h ^= h >> 13U;
  }
  return (h >> 8U) / 16777215.0;
}

double noise(const vector& at, std::uint32_t seed) {
  const int x = static_cast<int>(std::floor(at.x));
  const int y = static_cast<int>(std::floor(at.y));
  const int z = static_cast<int>(std::floor(at.z));
  const double along_x = smooth(at.x - x);
  const auto edge = [&](int dy, int dz) {
    return mix(scatter(x, y + dy, z + dz, seed), scatter(x + 1, y + dy, z + dz, seed), along_x);
  };
  const double along_y = smooth(at.y - y);
  return mix(mix(edge(0, 0), edge(1, 0), along_y), mix(edge(0, 1), edge(1, 1), along_y),
             smooth(at.z - z));
}

double clouds(vector at, int layers, std::uint32_t seed) {
  double sum = 0;
  double height = 0.5;
  double total = 0;
  for (int layer = 0; layer < layers; ++layer) {
    sum += height * noise(at, seed + static_cast<std::uint32_t>(layer));
    total += height;
    height /= 2;
    at = 2.0 * at;
  }
  return sum / total;
}

}  // namespace ostrane::samples
