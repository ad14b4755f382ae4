#include "engine/page/scale.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "engine/columns.h"

namespace korventally::engine {
namespace {

constexpr int kAnyWidth = 300;

}  // namespace

double roundStep(double atLeast) {
  // What the rounding of the logarithm adds may not make a step of 10 out of one of 1.
  constexpr double kSlack = 1 - 1e-9;
  const double power = std::pow(10.0, std::floor(std::log10(atLeast)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= atLeast * kSlack) return factor * power;
  }
  return 10 * power;
}

std::string Ticks::text(double value) const { return fixed(value, decimals, kAnyWidth); }

Ticks ticksBetween(double low, double high, int most) {
  const double step = high > low ? roundStep((high - low) / most) : 0;
  if (step <= 1e-12 * std::max(std::abs(low), std::abs(high))) return {};
  Ticks ticks;
  ticks.decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step * 1.000001))));
  const double first = std::ceil(low / step - 1e-9);
  for (int i = 0; i <= most; ++i) {
    const double value = (first + i) * step;
    if (value <= high + 1e-9 * step) ticks.values.push_back(value);
  }
  return ticks;
}

}  // namespace korventally::engine
