// The values of a ranked list, held against the averages computed here.
#pragma once

#include <string>

#include "engine/averages.h"
#include "engine/receptor_file.h"
#include "engine/report_results.h"

namespace korventally::engine {

/// A ranked list gives the highest averages of all sources: the values that it has for a receptor
/// are that receptor's highest ones, with or without the background. A warning where they
/// differ by more than 0.1 per cent and 0.001 ug/m**3; empty where none does, and for other files.
std::string warningOfRankedValues(const Names& names, const Receptors& receptors,
                                  const Averages& averages);

}  // namespace korventally::engine
