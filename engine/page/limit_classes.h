// Classes of totals for the colours of the map: their bounds are laid about the limit, so that a
// colour says on which side of it a total lies.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace korventally::engine {

inline constexpr std::size_t kClassesBelow = 4;
inline constexpr std::size_t kClassesAbove = 4;

class LimitClasses {
 public:
  /// Four equal classes up to the limit, or up to a round number where the highest total is less
  /// than a quarter of it; four above it, in round shares of it, which hold the highest.
  LimitClasses(double limit, double highest);

  /// 0 to 3 for a total that does not exceed the limit, 4 to 7 for one that does.
  std::size_t classOf(double total) const;

  /// "0 to 22.75"; empty for a class above the highest total, as those where nothing exceeds.
  std::string text(std::size_t index) const;

 private:
  double limit_;
  double highest_;
  std::vector<double> bounds_;  ///< upper ends of the classes
};

}  // namespace korventally::engine
