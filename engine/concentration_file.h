// A concentration file: lines that begin with "#" at its top, then one line per hour with year,
// month, day, hour and one value in g/m**3 for every receptor, in the order of the receptor file;
// for an hour that has no concentrations, the word "calm" or "missing" in place of the values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// What an hour is in one file, or in all of them.
enum class HourKind : std::uint8_t {
  kValid,
  kZero,     ///< valid as well, and zero at every receptor
  kCalm,     ///< marked: no wind that a model could compute with
  kMissing,  ///< marked: no weather is known
};

/// What one file came to. Memory: one double per receptor and block, however many hours there are,
/// and one byte per hour of the blocks.
struct GroupSums {
  std::vector<double> sums;     ///< g/m**3, summed over the hours of a block; [block][receptor]
  std::vector<HourKind> kinds;  ///< of the hours of all blocks, from the first on
  std::uint64_t bytes = 0;
  std::uint64_t lines = 0;
  std::uint64_t hours = 0;    ///< in the whole file
  std::uint64_t calm = 0;     ///< of those, marked so
  std::uint64_t missing = 0;  ///< of those, marked so
  HourCount hourCount = HourCount::kUnknown;
  Hour first = 0;
  Hour last = 0;
};

/// Reads the whole file, the hours outside the run too, and checks every line of it. Hours must
/// follow each other without a gap, and all hours of the blocks must be there. Throws Fault with
/// file and line. `giveUp` is asked now and then; once it says true, the sums are left unfinished.
GroupSums readConcentrations(InputFile& file, const Blocks& blocks, std::size_t receptors,
                             const std::function<bool()>& giveUp);

}  // namespace korventally::engine
