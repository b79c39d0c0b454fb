#pragma once

#include <algorithm>
#include <cmath>

namespace ostrane::samples {

constexpr double pi = 3.14159265358979323846;

struct vector {
  double x = 0;
  double y = 0;
  double z = 0;
};

constexpr vector operator+(const vector& a, const vector& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr vector operator*(double s, const vector& a) { return {s * a.x, s * a.y, s * a.z}; }
constexpr double dot(const vector& a, const vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

inline vector unit(const vector& a) { return 1.0 / std::sqrt(dot(a, a)) * a; }

// Rotates about the y axis.
inline vector turned(const vector& a, double angle) {
  return {a.x * std::cos(angle) + a.z * std::sin(angle), a.y,
          a.z * std::cos(angle) - a.x * std::sin(angle)};
}

// 0 up to `low`, 1 from `high` on, smooth between.
inline double smooth_step(double low, double high, double value) {
  const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

inline double mix(double a, double b, double share) { return a + (b - a) * share; }

// The light comes from the upper left; x is right, y down, z towards the eye.
inline vector towards_light() { return unit({-0.55, -0.55, 0.65}); }

}  // namespace ostrane::samples
