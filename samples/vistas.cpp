#include "vistas.h"

#include <cmath>

#include "ink.h"
#include "noise.h"
#include "space.h"

namespace ostrane::samples {
namespace {

constexpr int columns = 226;
constexpr int rows = 176;
constexpr double shore = 118;  // the row where the land meets the lake
constexpr int ridge_count = 4;

struct hour {
  ramp sky;
  double top_light;
  double low_light;
  double sun_x;  // of the sun, or of the moon
  double sun_y;
  double sun_size;
  ramp sun;
  ramp ridges[ridge_count];  // from the farthest to the nearest
  double daylight;
  bool stars;
};

constexpr hour dawn{
    ramp::rose, 0.3,  0.86,       60,
    88,         11,   ramp::gold, {ramp::violet, ramp::night, ramp::teal, ramp::moss},
    0.55,       false};
constexpr hour noon{ramp::ocean, 0.5,  0.94,       172,
                    26,          10,   ramp::gold, {ramp::ice, ramp::steel, ramp::moss, ramp::leaf},
                    0.85,        false};
constexpr hour dusk{
    ramp::dusk, 0.18, 0.92,        150,
    86,         16,   ramp::flame, {ramp::dusk, ramp::rust, ramp::earth, ramp::earth},
    0.5,        false};
constexpr hour night{
    ramp::night, 0.06, 0.5,       64,
    34,          9,    ramp::ice, {ramp::night, ramp::night, ramp::teal, ramp::teal},
    0.3,         true};

double ridge_line(int ridge, double x) {
  constexpr double base[ridge_count] = {86, 98, 112, 121};
  constexpr double height[ridge_count] = {84, 58, 34, 18};
  constexpr double width[ridge_count] = {58, 44, 36, 30};
  const double hills = clouds({x / width[ridge], 7.0 * ridge, 0.5}, 5, 101);
  return base[ridge] - height[ridge] * (hills - 0.3);
}

// Brighter on slopes that face the sun, and hazier towards the foot of a range.
ink mountain(const hour& now, int ridge, double x, double y) {
  const double top = ridge_line(ridge, x);
  const double slope = ridge_line(ridge, x + 3) - ridge_line(ridge, x - 3);
  const double facing = (now.sun_x > x ? slope : -slope) * 0.017;
  const double rough = clouds({x / 9, y / 6, 3.0 * ridge}, 3, 103) - 0.5;
  const double haze = (y - top) * 0.0035;
  const double far = 0.13 * (ridge_count - 1 - ridge);
  const double light = now.daylight * (0.34 + far + facing + 0.5 * rough) + haze * now.daylight;
  const bool snow = ridge == 0 && top < 66 && y - top < (70 - top) * 0.42 + 10 * rough;
  return snow ? ink{ramp::ice, now.daylight + 0.12 + facing + 0.4 * rough}
              : ink{now.ridges[ridge], light};
}

ink sky(const hour& now, double x, double y) {
  const double down = y / shore;
  const double from_sun = std::hypot(x - now.sun_x, y - now.sun_y);
  if (from_sun < now.sun_size) return {now.sun, 1.05 - 0.012 * from_sun};
  const int column = static_cast<int>(x);
  const int row = static_cast<int>(y);
  if (now.stars && scatter(column, row, 0, 107) > 0.993) {
    return {ramp::ice, 0.5 + 0.5 * scatter(column, row, 1, 107)};
  }
  const double glow = 0.5 * std::exp(-(from_sun - now.sun_size) / 16);
  const double cover = clouds({x / 46, y / 13, now.sun_x}, 4, 109);
  const double veil = 0.6 * smooth_step(0.5, 0.72, cover);
  return {now.sky,
          mix(now.top_light, now.low_light, down) + (glow + veil) * (0.2 + 0.4 * now.daylight)};
}

ink above_water(const hour& now, double x, double y) {
  for (int ridge = ridge_count - 1; ridge >= 0; --ridge) {
    if (y > ridge_line(ridge, x)) return mountain(now, ridge, x, y);
  }
  return sky(now, x, y);
}

// The lake mirrors the view above it, darker and with ripples that grow towards the eye.
ink water_at(const hour& now, double x, double y) {
  const double depth = y - shore;
  const double ripple = noise({x / 14, depth / (1.2 + depth / 18), 0}, 113) - 0.5;
  const ink mirrored =
      above_water(now, x + 0.2 * depth * ripple, shore - 1.9 * depth + 0.4 * depth * ripple);
  return {mirrored.hue, mirrored.light * (0.86 - 0.003 * depth) + 0.14 * ripple};
}

picture vista(const hour& now) {
  return painted(columns, rows, [&](double x, double y) {
    return y > shore ? water_at(now, x, y) : above_water(now, x, y);
  });
}

}  // namespace

std::vector<picture> day_of_vistas() {
  return {vista(dawn), vista(noon), vista(dusk), vista(night)};
}

}  // namespace ostrane::samples
