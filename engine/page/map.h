// The map of the receptors.
#pragma once

#include <string>

#include "engine/page/results.h"

namespace korventally::engine {

/// A drawing with its legend and the sentences that belong to it, as markup.
std::string mapOf(const Results& results);

}  // namespace korventally::engine
