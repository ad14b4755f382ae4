// A concentration file: lines that begin with "#" at its top, then one line per hour with year,
// month, day, hour and one value in g/m**3 for every receptor, in the order of the receptor file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// What one file came to. Memory: one double per receptor and block, however many hours there are.
struct GroupSums {
  std::vector<double> sums;  ///< g/m**3, summed over the hours of a block; [block][receptor]
  std::uint64_t bytes = 0;
  std::uint64_t lines = 0;
  std::uint64_t hours = 0;  ///< in the whole file
  Hour first = 0;
  Hour last = 0;
};

/// Reads the whole file, the hours outside the run too, and checks every line of it. Hours must
/// follow each other without a gap, and all hours of the blocks must be there. Throws Fault with
/// file and line. `giveUp` is asked now and then; once it says true, the sums are left unfinished.
GroupSums readConcentrations(InputFile& file, const Blocks& blocks, std::size_t receptors,
                             const std::function<bool()>& giveUp);

}  // namespace korventally::engine
