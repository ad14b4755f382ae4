// The years of a run, counted from its start: rank 1 is left out once in each of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/blocks.h"

namespace korventally::engine {

/// A year of the run holds the blocks whose first hour lies in it. The last one may be shorter.
struct RunYear {
  std::size_t firstBlock = 0;
  std::size_t endBlock = 0;  ///< behind the last one

  std::size_t blocks() const { return endBlock - firstBlock; }
};

/// At least one year, in order; every block is in exactly one of them.
std::vector<RunYear> yearsOf(const Blocks& blocks);

/// Hours of the run in the last of these years, and hours that this year has in the calendar.
struct LastYear {
  std::int64_t hours = 0;
  std::int64_t whole = 0;
};
LastYear lastYearOf(const Blocks& blocks, std::size_t years);

}  // namespace korventally::engine
