// What the page shows: the same results that the list file reports.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/columns.h"
#include "engine/exceedances.h"
#include "engine/judgement.h"
#include "engine/report_results.h"
#include "engine/valid_hours.h"

namespace korventally::engine {

/// All of these must outlive it.
struct Results {
  const Names& names;
  const Averages& averages;
  const RunHours& hours;
  const Judgement& judgement;
  const std::vector<Fact>& ofCase;
  const std::vector<std::string>& ofAverages;  ///< lines of that section
  const std::vector<Fact>& ofJudgement;
  const std::vector<std::string>& warnings;
};

/// The receptor with the highest total that was judged; of equal ones the earliest, then the first.
std::size_t worstReceptor(const Exceedances& exceedances);

/// "average of 24 hours", "annual average".
std::string kindOfAverage(const Blocks& blocks);

}  // namespace korventally::engine
