#include "engine/page/time_ticks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/calendar.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr Hour kDay = 24;

// Hours of each day, or days of each month, that a step reaches from the first one on. A step that
// the month's length cuts short would stand too close to the first of the next.
constexpr std::int64_t kHourSteps[] = {1, 3, 6, 12};
constexpr std::int64_t kDaySteps[] = {1, 2, 5, 10, 15};
constexpr std::int64_t kMonthSteps[] = {1, 2, 3, 6};
constexpr std::int64_t kYearSteps[] = {1, 2, 5, 10, 20, 50};
constexpr std::int64_t kLastDay = 27;

std::int64_t partOf(Hour hour, std::size_t begin, std::size_t size) {
  return *parseWhole(dateText(hour).substr(begin, size));
}

struct Axis {
  Hour first, last;
  std::size_t most;
  std::vector<TimeTick> ticks;

  void add(Hour hour, std::size_t begin, std::size_t size) {
    if (hour >= first && hour <= last) ticks.push_back({hour, dateText(hour).substr(begin, size)});
  }
  bool fits() const { return ticks.size() <= most; }
};

void everyHours(std::int64_t step, Axis& axis) {
  for (Hour hour = axis.first - axis.first % step; hour <= axis.last && axis.fits(); hour += step) {
    axis.add(hour, 5, 8);
  }
}

void everyDays(std::int64_t step, Axis& axis) {
  for (Hour hour = axis.first - axis.first % kDay; hour <= axis.last && axis.fits(); hour += kDay) {
    const std::int64_t day = partOf(hour, 8, 2) - 1;
    if (day % step == 0 && (step == 1 || day <= kLastDay)) axis.add(hour, 5, 5);
  }
}

void everyMonths(std::int64_t step, Axis& axis) {
  const std::int64_t ofFirst = partOf(axis.first, 0, 4);
  const std::int64_t years = std::max<std::int64_t>(step / 12, 1);
  const std::int64_t year = std::max(ofFirst - ofFirst % years, kEarliestYear);
  for (std::int64_t month = 0; axis.fits(); month += step) {
    const auto hour = hourFromDate(year + month / 12, month % 12 + 1, 1, 0);
    if (!hour || *hour > axis.last) return;
    axis.add(*hour, 0, step < 12 ? 7 : 4);
  }
}

}  // namespace

std::vector<TimeTick> timeTicks(Hour first, Hour last, std::size_t most) {
  std::vector<TimeTick> best;
  // The first step that gives few enough is the finest.
  const auto found = [&](const auto& every, std::int64_t step) {
    Axis axis{first, last, most, {}};
    every(step, axis);
    if (axis.fits()) best = axis.ticks;
    return axis.fits();
  };
  for (const std::int64_t step : kHourSteps) {
    if (found(everyHours, step)) return best;
  }
  for (const std::int64_t step : kDaySteps) {
    if (found(everyDays, step)) return best;
  }
  for (const std::int64_t step : kMonthSteps) {
    if (found(everyMonths, step)) return best;
  }
  for (const std::int64_t step : kYearSteps) {
    if (found(everyMonths, 12 * step)) return best;
  }
  return best;
}

}  // namespace korventally::engine
