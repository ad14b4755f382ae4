// The dates that a time axis names.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/calendar.h"

namespace korventally::engine {

struct TimeTick {
  Hour hour;
  std::string text;  ///< "2009-07", "2009", "07-16" or "07-16 06", whichever suits the length
};

/// At most `most` of them, at least 2, from `first` to `last`, both included: at round hours, days
/// from the first of a month, months or years.
std::vector<TimeTick> timeTicks(Hour first, Hour last, std::size_t most);

}  // namespace korventally::engine
