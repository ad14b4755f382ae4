// What a reviewer should look at before he relies on the numbers: likely slips in the case, in its
// files and in their units. None of it is certain, so nothing here is an error.
#pragma once

#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/concentration_file.h"
#include "engine/judgement.h"
#include "engine/report_results.h"

namespace korventally::engine {

/// Whole sentences, one string for each warning; none when nothing is conspicuous.
std::vector<std::string> warningsOf(const Names& names, const std::vector<GroupSums>& groups,
                                    const Averages& averages, const Judgement& judgement);

}  // namespace korventally::engine
