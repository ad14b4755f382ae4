// What the rounding of the arithmetic may decide: nothing.
#pragma once

#include <cmath>

namespace korventally::engine {

/// Numbers that differ by less than one part in 10**9 are equal.
inline constexpr double kRounding = 1e-9;

/// 1, 0 or -1 for a number above, at or below the limit: 91.0 given hour by hour is at 91.0.
inline int sideOf(double number, double limit, double tolerance = kRounding) {
  const double beyond = number - limit;
  const double slack = tolerance * std::abs(limit);
  return beyond > slack ? 1 : beyond < -slack ? -1 : 0;
}

}  // namespace korventally::engine
