#include "engine/averages.h"

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/valid_hours.h"

namespace korventally::engine {

Averages::Averages(const Case& theCase, const Blocks& blocks, const std::vector<GroupSums>& groups,
                   std::size_t receptors, std::vector<std::int64_t> validHours)
    : groups_(groups),
      blocks_(static_cast<std::size_t>(blocks.count)),
      receptors_(receptors),
      validHours_(std::move(validHours)),
      offset_(theCase.offset),
      background_(theCase.background) {
  factors_.reserve(validHours_.size());
  for (const std::int64_t valid : validHours_) {
    factors_.push_back(theCase.scale / static_cast<double>(divisorOf(blocks, valid)));
  }
}

double Averages::leftOver(std::size_t block, std::size_t receptor) const {
  double rest = own(0, block, receptor);
  for (std::size_t group = 1; group < groups(); ++group) rest -= own(group, block, receptor);
  return rest;
}

bool comesFirst(const Place& one, const Place& other) {
  return std::tuple(-one.value, one.block, one.receptor) <
         std::tuple(-other.value, other.block, other.receptor);
}

}  // namespace korventally::engine
