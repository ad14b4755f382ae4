// The averages of a run, computed from the sums when asked for. All concentrations here are in
// ug/m**3.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"

namespace korventally::engine {

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

  /// The total less the background and the groups' contributions: what no group accounts for, and
  /// less than zero where they are more than the total.
  double leftOver(std::size_t block, std::size_t receptor) const;

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

/// The larger value, then the earlier block, then the earlier receptor.
bool comesFirst(const Place& one, const Place& other);

}  // namespace korventally::engine
