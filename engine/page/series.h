// The totals in time at the worst receptor.
#pragma once

#include <string>

#include "engine/page/results.h"

namespace korventally::engine {

/// A drawing with its legend and sentences, as markup.
std::string seriesOf(const Results& results);

}  // namespace korventally::engine
