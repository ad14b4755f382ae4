// What the averages mean: maxima, exceedances, who contributes to them, and whether the groups fit
// together. All concentrations here are in ug/m**3.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/run_years.h"

namespace korventally::engine {

/// Over all receptors, the largest of their highest values and of their second-highest ones. Of
/// equal values the earliest block, then the first receptor counts.
struct Maxima {
  Place highest;
  std::optional<Place> second;  ///< nothing when there is only one block
};

/// The facility and the other groups together, beyond the value of the first group.
struct Misfit {
  std::uint64_t count = 0;  ///< receptors and blocks with more than rounding explains
  Place worst;              ///< value: how far beyond
};

struct Judgement {
  std::vector<Maxima> maxima;  ///< per group; the first with background
  std::vector<RunYear> years;  ///< of the run
  /// Rank 1 excluded: for every year of more than one block each receptor's highest average.
  std::vector<Place> leftOut;
  std::uint64_t judged = 0;  ///< averages of group 1 held against the standard
  Exceedances exceedances;
  Misfit misfit;
};

/// Hands every exceedance to the sink, by block and then by receptor. Memory: a few numbers per
/// receptor and group, and per receptor and year.
Judgement judge(const Case& theCase, const Blocks& blocks, const Averages& averages,
                const ExceedanceCount::Sink& sink);

}  // namespace korventally::engine
