// From values to places in a drawing, and the round values that its axes name.
#pragma once

#include <string>
#include <vector>

namespace korventally::engine {

/// The smallest of 1, 2 and 5 times a power of ten that is not below the number, which is above 0.
double roundStep(double atLeast);

/// At most `most` multiples of a round step from `low` to `high`; none when these are equal, or so
/// near to each other that doubles cannot tell their multiples apart.
struct Ticks {
  std::vector<double> values;
  int decimals = 0;  ///< that tell them apart

  std::string text(double value) const;
};
Ticks ticksBetween(double low, double high, int most);

/// Maps [low, high] to [begin, end], which may run backwards.
struct Scale {
  double low, high, begin, end;

  double operator()(double value) const {
    return begin + (value - low) / (high - low) * (end - begin);
  }
};

}  // namespace korventally::engine
