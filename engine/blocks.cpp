#include "engine/blocks.h"

#include <cstdint>

#include "engine/calendar.h"
#include "engine/control_file.h"
#include "engine/fault.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::int64_t kCommonYear = 8760;
constexpr std::int64_t kLeapYear = 8784;

Blocks planAnnual(const Case& theCase) {
  const std::int64_t year = hoursOfYearFrom(theCase.start);
  if (theCase.runHours > year) {
    throw Fault("The run length of " + hoursText(theCase.runHours) +
                " is longer than the year that begins at " + dateText(theCase.start) + " (" +
                hoursText(year) + "); an annual average covers one year at most.");
  }
  return {theCase.start, theCase.runHours, 1, 0, true, HourCount::kUnknown};
}

}  // namespace

Blocks planBlocks(const Case& theCase) {
  const std::int64_t hours = theCase.averagingHours;
  if (hours == kCommonYear || hours == kLeapYear) return planAnnual(theCase);
  if (hours > kCommonYear) {
    throw Fault("The averaging period of " + hoursText(hours) +
                " is neither an annual one (8760 or 8784) nor shorter than a year.");
  }
  if (hours > theCase.runHours) {
    throw Fault("The run length of " + hoursText(theCase.runHours) +
                " is shorter than one averaging period of " + hoursText(hours) + ".");
  }
  return {theCase.start,      hours, theCase.runHours / hours, theCase.runHours % hours, false,
          HourCount::kUnknown};
}

}  // namespace korventally::engine
