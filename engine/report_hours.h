// What the list file says of the hours: how many are marked, and what unmarked zeros may mean.
#pragma once

#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/judgement.h"
#include "engine/report_results.h"
#include "engine/valid_hours.h"

namespace korventally::engine {

/// "3 hours calm, 1 hour missing", of a file; "no hour marked" when there is none.
std::string markedText(const GroupSums& sums);

/// Lines for the section on the averages: the marked hours among those of the run, and how averages
/// with such hours are formed. Nothing when none is marked.
std::vector<std::string> linesOfMarkedHours(const Blocks& blocks, const RunHours& hours,
                                            const Averages& averages);

/// Hours that are zero everywhere may be calm ones that nobody marked, or hours in which no source
/// was at work. A warning that says how many there are and what they change; empty when there are
/// none. `ifCalm` are the averages without them.
std::string warningOfZeroHours(const Names& names, const RunHours& hours, const Averages& ifCalm,
                               const Judgement& judgement);

}  // namespace korventally::engine
