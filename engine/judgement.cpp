#include "engine/judgement.h"

#include <cstddef>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/rounding.h"
#include "engine/run_years.h"

namespace korventally::engine {
namespace {

// Files with four or more significant digits stay within this.
constexpr double kMisfitShare = 1e-3;
constexpr double kMisfitFloor = 1e-3;  // ug/m**3

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

std::vector<TopTwo> topTwoOfReceptors(const Averages& averages, std::size_t group,
                                      const RunYear& year) {
  constexpr double kNone = -1;  // below every average
  const TopTwo none{{0, 0, kNone}, {0, 0, kNone}};
  std::vector<TopTwo> tops(averages.receptors(), none);
  for (std::size_t block = year.firstBlock; block < year.endBlock; ++block) {
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

std::vector<Maxima> maximaOfGroups(const Averages& averages) {
  const RunYear wholeRun{0, averages.blocks()};
  std::vector<Maxima> maxima;
  for (std::size_t group = 0; group < averages.groups(); ++group) {
    const std::vector<TopTwo> tops = topTwoOfReceptors(averages, group, wholeRun);
    maxima.push_back(maximaOf(tops, averages.blocks() > 1));
  }
  return maxima;
}

void checkFit(const Averages& averages, std::size_t block, std::size_t receptor, Misfit& misfit) {
  const double own = averages.own(0, block, receptor);
  const double beyond = -averages.leftOver(block, receptor);
  if (beyond <= kMisfitShare * own + kMisfitFloor) return;
  if (misfit.count++ == 0 || beyond > misfit.worst.value) misfit.worst = {block, receptor, beyond};
}

// The highest block of each receptor; empty where none is left out.
std::vector<TopTwo> rank1Of(const Case& theCase, const Averages& averages, const RunYear& year) {
  if (!theCase.excludeRank1 || year.blocks() < 2) return {};
  return topTwoOfReceptors(averages, 0, year);
}

}  // namespace

Judgement judge(const Case& theCase, const Blocks& blocks, const Averages& averages,
                const ExceedanceCount::Sink& sink) {
  Judgement result;
  result.maxima = maximaOfGroups(averages);
  result.years = yearsOf(blocks);
  ExceedanceCount exceedances(theCase, averages, sink);
  for (const RunYear& year : result.years) {
    const std::vector<TopTwo> rank1 = rank1Of(theCase, averages, year);
    for (const TopTwo& top : rank1) result.leftOut.push_back(top.first);
    for (std::size_t block = year.firstBlock; block < year.endBlock; ++block) {
      for (std::size_t receptor = 0; receptor < averages.receptors(); ++receptor) {
        checkFit(averages, block, receptor, result.misfit);
        if (!rank1.empty() && rank1[receptor].first.block == block) continue;
        ++result.judged;
        exceedances.judge({block, receptor, averages.total(0, block, receptor)});
      }
    }
  }
  result.exceedances = exceedances.finish();
  return result;
}

}  // namespace korventally::engine
