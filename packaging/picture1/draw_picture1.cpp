// Draws the picture of the extraction dialog: an open crate from which pictures rise. Writes a
// greyscale PGM of 210 by 128 pixels to standard output.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr int columns = 210;
constexpr int rows = 128;
constexpr int samples_per_side = 3;

struct vec {
  double x, y, z;
};

vec operator+(vec a, vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
vec operator-(vec a, vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
vec operator*(vec a, double s) { return {a.x * s, a.y * s, a.z * s}; }
double dot(vec a, vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
double length(vec a) { return std::sqrt(dot(a, a)); }
vec unit(vec a) { return a * (1 / length(a)); }

vec turned(vec p, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {c * p.x + s * p.z, p.y, c * p.z - s * p.x};
}

vec tilted(vec p, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {c * p.x + s * p.y, c * p.y - s * p.x, p.z};
}

// Distance to a box of these half sizes around the origin.
double box(vec p, vec half) {
  const vec q = {std::abs(p.x) - half.x, std::abs(p.y) - half.y, std::abs(p.z) - half.z};
  const vec outside = {std::max(q.x, 0.0), std::max(q.y, 0.0), std::max(q.z, 0.0)};
  return length(outside) + std::min(std::max({q.x, q.y, q.z}), 0.0);
}

double crate(vec p) {
  const vec q = turned(p, 0.5);
  const double body = box(q - vec{0, 0.5, 0}, {1.3, 0.5, 0.8});
  const double hollow = box(q - vec{0, 0.7, 0}, {1.2, 0.6, 0.7});
  return std::max(body, -hollow);
}

struct card {
  vec position;
  double turn, tilt, size;
};

constexpr std::array<card, 4> cards = {{{{-0.75, 1.35, 0.1}, 0.7, 0.25, 0.34},
                                        {{0.15, 1.75, -0.1}, 0.3, -0.2, 0.38},
                                        {{0.95, 2.25, 0.2}, 0.9, -0.5, 0.32},
                                        {{1.75, 2.75, 0.1}, 0.4, 0.4, 0.28}}};

vec in_card(const card& c, vec p) { return tilted(turned(p - c.position, c.turn), c.tilt); }

struct hit {
  double distance;
  double tone;
};

hit scene(vec p) {
  hit nearest = {p.y, 0.72};
  if (const double d = crate(p); d < nearest.distance) {
    const double plank = std::abs(std::fmod(std::abs(p.y) * 3, 1.0) - 0.5);
    nearest = {d, plank > 0.46 ? 0.25 : 0.5};
  }
  for (const card& c : cards) {
    const vec q = in_card(c, p);
    const double d = box(q, {c.size, c.size, 0.04}) - 0.015;
    if (d >= nearest.distance) continue;
    const double radius = std::hypot(q.x, q.y) / c.size;
    const bool frame = std::max(std::abs(q.x), std::abs(q.y)) > 0.82 * c.size;
    nearest = {d, frame ? 0.95 : radius < 0.35 ? 0.9 : radius < 0.62 ? 0.3 : 0.62};
  }
  return nearest;
}

vec normal_at(vec p) {
  constexpr double e = 1e-4;
  const auto d = [](vec q) { return scene(q).distance; };
  return unit({d(p + vec{e, 0, 0}) - d(p - vec{e, 0, 0}), d(p + vec{0, e, 0}) - d(p - vec{0, e, 0}),
               d(p + vec{0, 0, e}) - d(p - vec{0, 0, e})});
}

double lit_share(vec from, vec light) {
  double share = 1;
  for (double t = 0.03; t < 6;) {
    const double d = scene(from + light * t).distance;
    if (d < 1e-4) return 0;
    share = std::min(share, 9 * d / t);
    t += d;
  }
  return share;
}

double shade(vec eye, vec ray) {
  const vec light = unit({-0.6, 1.1, -0.8});
  double t = 0;
  for (int step = 0; step < 300 && t < 30; ++step) {
    const hit h = scene(eye + ray * t);
    if (h.distance < 5e-4) {
      const vec p = eye + ray * t;
      const double direct = std::max(0.0, dot(normal_at(p), light));
      const double brightness = h.tone * (0.28 + 0.85 * direct * lit_share(p, light));
      const double haze = std::min(1.0, t / 26);
      return brightness * (1 - haze) + 0.9 * haze;
    }
    t += h.distance * 0.9;
  }
  return 0.9;
}

double pixel(int column, int row) {
  const vec eye = {0.3, 2.2, -5.6};
  const vec ahead = unit(vec{0.3, 1.3, 0} - eye);
  const vec right = unit({ahead.z, 0, -ahead.x});
  const vec up = {ahead.y * right.z - ahead.z * right.y, ahead.z * right.x - ahead.x * right.z,
                  ahead.x * right.y - ahead.y * right.x};
  double sum = 0;
  for (int i = 0; i < samples_per_side * samples_per_side; ++i) {
    const double x = column + (i % samples_per_side + 0.5) / samples_per_side - columns / 2.0;
    const double y = rows / 2.0 - row - (i / samples_per_side + 0.5) / samples_per_side;
    sum += shade(eye, unit(ahead * 175 + right * x + up * y));
  }
  return sum / (samples_per_side * samples_per_side);
}

}  // namespace

int main() {
  std::printf("P5\n%d %d\n255\n", columns, rows);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      const double tone = std::pow(std::clamp(pixel(column, row), 0.0, 1.0), 0.85);
      std::putchar(static_cast<int>(std::lround(255 * tone)));
    }
  }
}
