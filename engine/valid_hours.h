// Which hours of a run count, and what an average is divided by.
//
// In an hour without wind, or without weather data, a dispersion model has no concentration to
// give. Regulators want such hours left out, but not so that a few hours make up a whole day: an
// average is divided by at least about three quarters of its hours.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"

namespace korventally::engine {

/// What the hours of all blocks are, in all files together.
struct RunHours {
  std::vector<HourKind> kinds;  ///< kZero: in every file; calm or missing: in every file
  std::uint64_t calm = 0;
  std::uint64_t missing = 0;
  std::uint64_t zero = 0;  ///< not marked, and zero at every receptor of every group
};

/// Throws Fault when one file marks an hour and another one does not, or otherwise; it names both
/// files and the hour. Throws Fault also for an annual average without any valid hour.
RunHours agreeOnHours(const Case& theCase, const Blocks& blocks,
                      const std::vector<GroupSums>& groups);

/// Valid hours of each block; with `zeroIsCalm` those that are zero everywhere are left out too.
std::vector<std::int64_t> validHoursOfBlocks(const Blocks& blocks, const RunHours& hours,
                                             bool zeroIsCalm = false);

/// What the sum of a block's hours is divided by: the valid hours, in a block of N hours at least
/// 0.75 N + 0.4, rounded to the nearest whole number (3 of 3, 6 of 8, 18 of 24). Annual averages
/// know no such least number.
std::int64_t divisorOf(const Blocks& blocks, std::int64_t validHours);

}  // namespace korventally::engine
