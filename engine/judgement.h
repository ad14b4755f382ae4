// What the averages mean: maxima, exceedances, who contributes to them, and whether the groups fit
// together. All concentrations here are in ug/m**3.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"

namespace korventally::engine {

inline constexpr std::size_t kMostExceedancesListed = 50;

/// The averages of a run, computed from the sums when asked for.
class Averages {
 public:
  /// `validHours` has one number for each block (validHoursOfBlocks()). `groups` must outlive this.
  Averages(const Case& theCase, const Blocks& blocks, const std::vector<GroupSums>& groups,
           std::size_t receptors, std::vector<std::int64_t> validHours);

  std::size_t groups() const { return groups_.size(); }
  std::size_t blocks() const { return blocks_; }
  std::size_t receptors() const { return receptors_; }

  /// Hours of the block that are neither calm nor missing; the same for all groups.
  std::int64_t validHours(std::size_t block) const { return validHours_[block]; }

  /// The group's own average, without background.
  double own(std::size_t group, std::size_t block, std::size_t receptor) const {
    return groups_[group].sums[block * receptors_ + receptor] * factors_[block] + offset_;
  }

  /// The average with the background, which belongs to the first group only.
  double total(std::size_t group, std::size_t block, std::size_t receptor) const {
    return own(group, block, receptor) + (group == 0 ? background_ : 0);
  }

 private:
  const std::vector<GroupSums>& groups_;
  std::size_t blocks_;
  std::size_t receptors_;
  std::vector<std::int64_t> validHours_;
  std::vector<double> factors_;  ///< of each block, from a sum in g/m**3 to an average in ug/m**3
  double offset_;
  double background_;
};

struct Place {
  std::size_t block = 0;
  std::size_t receptor = 0;
  double value = 0;
};

/// Over all receptors, the largest of their highest values and of their second-highest ones. Of
/// equal values the earliest block, then the first receptor counts.
struct Maxima {
  Place highest;
  std::optional<Place> second;  ///< nothing when there is only one block
};

/// FACILITY and the OTHER groups together, beyond the value of the first group.
struct Misfit {
  std::uint64_t count = 0;  ///< receptors and blocks with more than rounding explains
  Place worst;              ///< value: how far beyond
};

struct Judgement {
  std::vector<Maxima> maxima;     ///< per group; the first with background
  std::vector<Place> leftOut;     ///< rank 1 excluded: every receptor's highest block; else empty
  std::uint64_t judged = 0;       ///< averages of group 1 held against the standard
  std::uint64_t exceedances = 0;  ///< of those, above the standard
  std::uint64_t significant = 0;  ///< of those, with FACILITY at or above the SIL
  std::uint64_t receptors = 0;    ///< with at least one exceedance
  std::vector<Place> largest;     ///< the largest exceedances, the largest first
  Misfit misfit;
};

/// Above the standard, or at or above the SIL, by more or less than the rounding of the arithmetic
/// (one part in 10**9): 91.0 given hour by hour is no exceedance of 91.0.
bool exceeds(double total, double standard);
bool reaches(double contribution, double sil);

/// Memory: a few numbers per receptor and group.
Judgement judge(const Case& theCase, const Averages& averages);

}  // namespace korventally::engine
