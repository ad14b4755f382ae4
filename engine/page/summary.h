// The head of the page: what came out, in a sentence; then the warnings and the case.
#pragma once

#include <string>

#include "engine/page/results.h"

namespace korventally::engine {

/// "3 significant exceedances", "12 exceedances, none significant", "No exceedance".
std::string headline(const Results& results);

/// The conclusion in sentences, as plain text with the list file's figures.
std::string conclusion(const Results& results);

/// Both of them, and the warnings, as markup.
std::string summaryOf(const Results& results);

/// The facts of the case, of the averages and of the judgement, as markup.
std::string factsOf(const Results& results);

}  // namespace korventally::engine
