// A concentration file: lines that begin with "#" at its top, then one line per hour with year,
// month, day, hour and one value in g/m**3 for every receptor; for an hour that has no
// concentrations, the word "calm" or "missing" in place of the values. The receptors are those that
// a line "# receptors: ..." at the top names, else those of the receptor file in its order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/receptor_file.h"
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
  std::size_t columns = 0;    ///< values in a line
  bool namesReceptors = false;
  HourCount hourCount = HourCount::kUnknown;
  Hour first = 0;
  Hour last = 0;
};

/// Reads the whole file, the hours outside the run too, and checks every line of it. Hours must
/// follow each other without a gap, and all hours of the blocks must be there. Throws Fault with
/// file and line. `giveUp` is asked now and then; once it says true, the sums are left unfinished.
/// `judgesReceptors`: no other file is known to fit the receptor file, which is to blame when the
/// numbers of receptors and values differ. `receptors` must outlive the call.
GroupSums readConcentrations(InputFile& file, const Blocks& blocks, const Receptors& receptors,
                             bool judgesReceptors, const std::function<bool()>& giveUp);

}  // namespace korventally::engine
