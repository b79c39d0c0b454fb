#include "rocket.h"

#include <algorithm>
#include <cmath>

#include "ink.h"
#include "noise.h"
#include "space.h"

namespace ostrane::samples {
namespace {

constexpr int frames = 16;
constexpr double middle = 28;
constexpr double nose = 5;
constexpr double nozzle = 66;

double half_width(double y) {
  const double along = (y - nose) / (nozzle - nose);
  return 13.5 * std::pow(std::sin(pi * (0.04 + 0.68 * along)), 0.75);
}

// The light on a cylinder; `across` is -1 at its left edge and 1 at its right one.
double light_on_round(double across) {
  const vector normal{across, 0, std::sqrt(1 - across * across)};
  return 0.2 + 0.85 * std::max(dot(normal, unit({-0.6, 0, 0.7})), 0.0);
}

std::optional<ink> window(double x, double y) {
  const double distance = std::hypot(x, y - 30);
  if (distance > 6.2) return std::nullopt;
  if (distance > 4.6) return ink{ramp::gold, 0.55 - 0.06 * (x + y - 30)};
  return ink{ramp::ocean, 0.55 - 0.06 * (x + y - 30)};
}

std::optional<ink> hull(double x, double y) {
  if (y < nose || y > nozzle || std::abs(x) > half_width(y)) return std::nullopt;
  if (const auto glass = window(x, y)) return glass;
  const bool painted_part = y < 18 || (y > 46 && y < 50) || y > 62;
  return ink{painted_part ? ramp::rust : ramp::steel, light_on_round(x / half_width(y))};
}

std::optional<ink> fin(double x, double y) {
  const double out = std::abs(x);
  const double outer = 11 + 0.55 * (y - 46);
  const double lower_edge = 66 + 0.5 * (out - 10);
  if (out > std::min(outer, 23.0) || y < 46 || y > lower_edge) return std::nullopt;
  return ink{ramp::rust, x < 0 ? 0.7 : 0.38};
}

std::optional<ink> flame(double x, double y, int frame) {
  const double phase = 2 * pi * frame / frames;
  const double length = 27 + 5 * std::sin(2 * phase) + 2.5 * std::sin(5 * phase);
  const double along = (y - nozzle) / length;
  if (along < 0 || along > 1) return std::nullopt;
  // Moves on a circle through the noise, so that the frames loop.
  const double flicker =
      noise({0.16 * x + 2 * std::cos(phase), 0.1 * y - 3 * along, 2 * std::sin(phase)}, 71) - 0.5;
  const double width = 9.5 * std::sqrt(1 - along) * (0.9 + 0.25 * std::sin(pi * along));
  const double across = std::abs(x + 6 * flicker * along) / width;
  if (across > 1) return std::nullopt;
  return ink{ramp::flame, 1.08 - 0.62 * along - 0.5 * across * across + 0.3 * flicker};
}

picture frame_picture(int frame) {
  return painted(56, 104, [frame](double column, double y) {
    const double x = column - middle;
    if (const auto colour = hull(x, y)) return colour;
    if (const auto colour = fin(x, y)) return colour;
    return flame(x, y, frame);
  });
}

}  // namespace

std::vector<picture> rising_rocket() {
  std::vector<picture> all;
  all.reserve(frames);
  for (int frame = 0; frame < frames; ++frame) all.push_back(frame_picture(frame));
  return all;
}

}  // namespace ostrane::samples
