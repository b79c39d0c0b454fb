#include "crests.h"

#include <cmath>

#include "ink.h"
#include "space.h"

namespace ostrane::samples {
namespace {

// The divisions of a field: true where it has the second colour. x is -1 at the left edge and 1 at
// the right one, y is 0 at the top and 1 at the tip.
using division = bool (*)(double x, double y);

constexpr division divisions[] = {
    [](double x, double) { return x > 0; },
    [](double, double y) { return y > 0.45; },
    [](double x, double y) { return (x > 0) != (y > 0.45); },
    [](double x, double y) { return x * 0.5 + 0.5 > y * 1.1; },
    [](double x, double y) { return std::abs(x * 0.5 + 0.5 - y * 1.1) < 0.18; },
    [](double x, double) { return std::abs(x) < 0.34; },
    [](double, double y) { return y > 0.3 && y < 0.58; },
    [](double x, double y) { return std::abs(x) < 0.22 || std::abs(y - 0.42) < 0.12; },
    [](double x, double y) { return std::abs(std::abs(x) * 0.5 - std::abs(y - 0.42)) < 0.1; },
    [](double x, double y) { return std::abs(y - 0.3 - 0.45 * std::abs(x)) < 0.13; },
    [](double x, double y) { return (std::lround(x * 3) + std::lround(y * 6)) % 2 != 0; },
    [](double x, double) { return std::lround(x * 3 + 6) % 2 != 0; },
    [](double, double y) { return std::lround(y * 7) % 2 != 0; },
    [](double x, double y) { return std::hypot(x, 1.7 * (y - 0.42)) < 0.5; },
    [](double x, double y) { return std::abs(std::hypot(x, 1.7 * (y - 0.42)) - 0.5) < 0.16; },
    [](double x, double y) { return std::abs(x) + 1.7 * std::abs(y - 0.42) < 0.62; },
    [](double x, double y) { return std::lround(x * 4 + y * 7 + 20) % 2 != 0; },
    [](double x, double y) { return y > 0.42 + 0.07 * std::sin(8 * x); },
    [](double x, double y) { return std::abs(x) > 0.62 || y < 0.16 || y > 0.72 - 0.3 * x * x; },
    [](double x, double y) {
      return std::hypot(x, 1.7 * (y - 0.42)) < 0.36 + 0.16 * std::cos(5 * std::atan2(x, 0.42 - y));
    },
    [](double x, double y) { return std::sin(9 * x) * std::sin(13 * y) > 0.25; },
};

struct colours {
  ramp field;
  ramp charge;
  ramp border;
};

constexpr colours schemes[] = {
    {ramp::rust, ramp::gold, ramp::steel},  {ramp::ocean, ramp::ice, ramp::gold},
    {ramp::leaf, ramp::sand, ramp::earth},  {ramp::violet, ramp::gold, ramp::steel},
    {ramp::night, ramp::steel, ramp::gold}, {ramp::teal, ramp::ice, ramp::steel},
    {ramp::rose, ramp::ice, ramp::gold},
};

// The distance from the outline, 1 at the middle axis; negative outside.
double inside(double x, double y) {
  const double half_width = y < 0.42 ? 1 : std::sqrt(1 - std::pow((y - 0.42) / 0.58, 2.2));
  return std::min({half_width - std::abs(x), 2 * y, 1.6 * (1 - y)});
}

picture crest(division divided, const colours& scheme) {
  constexpr double middle = 20;
  return painted(40, 48, [&](double column, double row) -> std::optional<ink> {
    const double x = (column - middle) / 18;
    const double y = (row - 2) / 44;
    if (y < 0 || y > 1) return std::nullopt;
    const double depth = inside(x, y);
    if (depth < 0) return std::nullopt;
    const double light = 0.66 - 0.22 * x - 0.34 * (y - 0.4);
    if (depth < 0.15) return ink{scheme.border, x + 2 * y < 0.8 ? light + 0.08 : light - 0.22};
    if (depth < 0.21) return ink{scheme.field, 0.2};
    return ink{divided(x, y) ? scheme.charge : scheme.field, light};
  });
}

}  // namespace

std::vector<picture> crest_collection() {
  std::vector<picture> crests;
  std::size_t next = 0;
  for (const division divided : divisions) {
    crests.push_back(crest(divided, schemes[next++ % std::size(schemes)]));
  }
  return crests;
}

}  // namespace ostrane::samples
