#include "engine/page/limit_classes.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>

#include "engine/exceedances.h"
#include "engine/page/scale.h"

namespace korventally::engine {
namespace {

constexpr double kNarrowest = 0.05;  // of the limit: a class above it

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", value);
  return text;
}

}  // namespace

LimitClasses::LimitClasses(double limit, double highest) : limit_(limit), highest_(highest) {
  const bool isLow = highest > 0 && highest < limit / kClassesBelow;
  const double step = (isLow ? std::min(limit, 4 * roundStep(highest / 4)) : limit) / kClassesBelow;
  for (std::size_t i = 1; i <= kClassesBelow; ++i) {
    bounds_.push_back(static_cast<double>(i) * step);
  }
  const double share = roundStep(std::max(kNarrowest, (highest / limit - 1) / kClassesAbove));
  for (std::size_t i = 1; i <= kClassesAbove; ++i) {
    bounds_.push_back(limit * (1 + static_cast<double>(i) * share));
  }
}

std::size_t LimitClasses::classOf(double total) const {
  const std::size_t first = exceeds(total, limit_) ? kClassesBelow : 0;
  const std::size_t last = first + kClassesBelow - 1;
  std::size_t index = first;
  while (index < last && total > bounds_[index]) ++index;
  return index;
}

std::string LimitClasses::text(std::size_t index) const {
  const double low = index == 0 ? 0 : index == kClassesBelow ? limit_ : bounds_[index - 1];
  if (index >= kClassesBelow && !exceeds(highest_, low)) return {};
  return number(low) + " to " + number(bounds_[index]);
}

}  // namespace korventally::engine
