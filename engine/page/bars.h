// The largest exceedances as stacked bars.
#pragma once

#include <string>

#include "engine/page/results.h"

namespace korventally::engine {

/// A drawing with its heading, legend and sentences, as markup.
std::string barsOf(const Results& results);

}  // namespace korventally::engine
