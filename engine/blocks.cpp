#include "engine/blocks.h"

#include "engine/fault.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

constexpr std::int64_t kCommonYear = 8760;
constexpr std::int64_t kLeapYear = 8784;

std::string Hours(std::int64_t hours) { return Counted(static_cast<std::uint64_t>(hours), "hour"); }

Blocks PlanAnnual(const Case& the_case) {
  const std::int64_t year = HoursOfYearFrom(the_case.start);
  if (the_case.run_hours > year) {
    throw Fault("The run length of " + Hours(the_case.run_hours) +
                " is longer than the year that begins at " + DateText(the_case.start) + " (" +
                Hours(year) + "); an annual average covers one year at most.");
  }
  return {the_case.start, the_case.run_hours, 1, 0, true};
}

}  // namespace

Blocks PlanBlocks(const Case& the_case) {
  const std::int64_t hours = the_case.averaging_hours;
  if (hours == kCommonYear || hours == kLeapYear) return PlanAnnual(the_case);
  if (hours > kCommonYear) {
    throw Fault("The averaging period of " + Hours(hours) +
                " is neither an annual one (8760 or 8784) nor shorter than a year.");
  }
  if (hours > the_case.run_hours) {
    throw Fault("The run length of " + Hours(the_case.run_hours) +
                " is shorter than one averaging period of " + Hours(hours) + ".");
  }
  return {the_case.start, hours, the_case.run_hours / hours, the_case.run_hours % hours, false};
}

}  // namespace korventally::engine
