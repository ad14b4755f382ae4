// Which hours a run uses, and which average each of them belongs to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/calendar.h"
#include "engine/control_file.h"

namespace korventally::engine {

/// Consecutive blocks of averaging hours from the start of the run. An annual average is one block
/// over the whole run.
struct Blocks {
  Hour start = 0;
  std::int64_t hours = 0;   ///< of one block
  std::int64_t count = 0;   ///< at least 1
  std::int64_t unused = 0;  ///< hours at the end of the run that fill no block
  bool annual = false;
  HourCount hourCount = HourCount::kUnknown;  ///< of the concentration files, once they were read

  Hour end() const { return start + hours * count; }  // the first hour behind the last block
  Hour startOf(std::int64_t block) const { return start + hours * block; }

  /// An hour, or the first hour of a block, as the concentration files name it.
  std::string nameOfHour(Hour hour) const { return dateText(hour, hourCount); }
  std::string nameOf(std::size_t block) const {
    return nameOfHour(startOf(static_cast<std::int64_t>(block)));
  }
};

/// Averaging periods of 1 to 8759 hours give blocks; 8760 and 8784 both mean annual, whatever the
/// length of the year. Throws Fault when no block fits, or when an annual run is longer than the
/// year that begins at its start.
Blocks planBlocks(const Case& theCase);

}  // namespace korventally::engine
