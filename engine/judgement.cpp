#include "engine/judgement.h"

#include <algorithm>
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
namespace {

constexpr double kRounding = 1e-9;

// Files with four or more significant digits stay within this.
constexpr double kMisfitShare = 1e-3;
constexpr double kMisfitFloor = 1e-3;  // ug/m**3

bool comesFirst(const Place& one, const Place& other) {
  return std::tuple(-one.value, one.block, one.receptor) <
         std::tuple(-other.value, other.block, other.receptor);
}

// The two highest blocks of one receptor.
struct TopTwo {
  Place first, second;

  void take(const Place& place) {
    // What differs by rounding alone is equal, and of equal ones the earliest is the highest.
    if (place.value > first.value * (1 + kRounding)) {
      second = first;
      first = place;
    } else if (place.value > second.value) {
      second = place;
    }
  }
};

std::vector<TopTwo> topTwoOfReceptors(const Averages& averages, std::size_t group) {
  constexpr double kNone = -1;  // below every average
  const TopTwo none{{0, 0, kNone}, {0, 0, kNone}};
  std::vector<TopTwo> tops(averages.receptors(), none);
  for (std::size_t block = 0; block < averages.blocks(); ++block) {
    for (std::size_t receptor = 0; receptor < averages.receptors(); ++receptor) {
      tops[receptor].take({block, receptor, averages.total(group, block, receptor)});
    }
  }
  return tops;
}

Maxima maximaOf(const std::vector<TopTwo>& tops, bool hasSecond) {
  Maxima maxima{tops.front().first, {}};
  Place second = tops.front().second;
  for (const TopTwo& top : tops) {
    if (comesFirst(top.first, maxima.highest)) maxima.highest = top.first;
    if (comesFirst(top.second, second)) second = top.second;
  }
  if (hasSecond) maxima.second = second;
  return maxima;
}

// Counts the exceedances and keeps the largest of them.
class Judging {
 public:
  Judging(const Case& theCase, const Averages& averages, Judgement& result)
      : case_(theCase), averages_(averages), result_(result), exceeds_(averages.receptors()) {}

  void judge(const Place& place) {
    ++result_.judged;
    if (!exceeds(place.value, case_.standard)) return;
    ++result_.exceedances;
    const double facility = averages_.own(1, place.block, place.receptor);
    if (reaches(facility, case_.sil)) ++result_.significant;
    if (!exceeds_[place.receptor]) ++result_.receptors;
    exceeds_[place.receptor] = true;
    keep(place);
  }

 private:
  // A heap whose front is the one to drop when there are too many.
  void keep(const Place& place) {
    std::vector<Place>& heap = result_.largest;
    heap.push_back(place);
    std::push_heap(heap.begin(), heap.end(), comesFirst);
    if (heap.size() <= kMostExceedancesListed) return;
    std::pop_heap(heap.begin(), heap.end(), comesFirst);
    heap.pop_back();
  }

  const Case& case_;
  const Averages& averages_;
  Judgement& result_;
  std::vector<bool> exceeds_;
};

void checkFit(const Averages& averages, const Place& place, double own, Misfit& misfit) {
  double parts = 0;
  for (std::size_t group = 1; group < averages.groups(); ++group) {
    parts += averages.own(group, place.block, place.receptor);
  }
  const double beyond = parts - own;
  if (beyond <= kMisfitShare * own + kMisfitFloor) return;
  if (misfit.count++ == 0 || beyond > misfit.worst.value) {
    misfit.worst = {place.block, place.receptor, beyond};
  }
}

}  // namespace

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

bool exceeds(double total, double standard) { return total - standard > kRounding * standard; }

bool reaches(double contribution, double sil) { return contribution - sil >= -kRounding * sil; }

Judgement judge(const Case& theCase, const Averages& averages) {
  Judgement result;
  for (std::size_t group = 0; group < averages.groups(); ++group) {
    const std::vector<TopTwo> tops = topTwoOfReceptors(averages, group);
    result.maxima.push_back(maximaOf(tops, averages.blocks() > 1));
    if (group > 0 || !theCase.excludeRank1) continue;
    for (const TopTwo& top : tops) result.leftOut.push_back(top.first);
  }
  Judging judging(theCase, averages, result);
  for (std::size_t block = 0; block < averages.blocks(); ++block) {
    for (std::size_t receptor = 0; receptor < averages.receptors(); ++receptor) {
      const Place place{block, receptor, averages.total(0, block, receptor)};
      checkFit(averages, place, averages.own(0, block, receptor), result.misfit);
      if (theCase.excludeRank1 && result.leftOut[receptor].block == block) continue;
      judging.judge(place);
    }
  }
  std::sort_heap(result.largest.begin(), result.largest.end(), comesFirst);
  return result;
}

}  // namespace korventally::engine
