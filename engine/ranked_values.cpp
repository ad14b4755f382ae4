#include "engine/ranked_values.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/columns.h"
#include "engine/receptor_file.h"
#include "engine/report_results.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

struct Difference {
  RankedValue listed;
  std::optional<double> computed;  // nothing when there are fewer averages than listed values
  std::size_t rank = 0;            // of both, at the receptor
};

struct Differences {
  std::uint64_t receptors = 0;  // with one at least
  std::optional<Difference> first;
};

bool differ(double listed, double computed) {
  const double larger = std::max(std::abs(listed), std::abs(computed));
  return std::abs(listed - computed) > 1e-3 * larger + 1e-3;
}

std::vector<std::vector<RankedValue>> byReceptor(const Receptors& receptors) {
  std::vector<std::vector<RankedValue>> lists(receptors.list.size());
  for (const RankedValue& value : receptors.ranked) lists[value.receptor].push_back(value);
  for (std::vector<RankedValue>& list : lists) {
    std::ranges::stable_sort(list, std::greater{}, &RankedValue::value);
  }
  return lists;
}

std::vector<double> highest(const Averages& averages, std::size_t receptor, std::size_t count) {
  std::vector<double> values;
  values.reserve(averages.blocks());
  for (std::size_t block = 0; block < averages.blocks(); ++block) {
    values.push_back(averages.own(0, block, receptor));
  }
  count = std::min(count, values.size());
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(count);
  std::partial_sort(values.begin(), middle, values.end(), std::greater{});
  values.resize(count);
  return values;
}

std::optional<Difference> firstDifference(const std::vector<RankedValue>& listed,
                                          const std::vector<double>& computed, double background) {
  for (std::size_t i = 0; i < listed.size(); ++i) {
    if (i >= computed.size()) return Difference{listed[i], std::nullopt, i + 1};
    const double value = computed[i] + background;
    if (differ(listed[i].value, value)) return Difference{listed[i], value, i + 1};
  }
  return std::nullopt;
}

void note(const std::optional<Difference>& difference, Differences& all) {
  if (!difference) return;
  ++all.receptors;
  if (!all.first) all.first = difference;
}

}  // namespace

std::string warningOfRankedValues(const Names& names, const Receptors& receptors,
                                  const Averages& averages) {
  if (!receptors.isRanked) return {};
  Differences without, with;
  const std::vector<std::vector<RankedValue>> lists = byReceptor(receptors);
  for (std::size_t receptor = 0; receptor < lists.size(); ++receptor) {
    const std::vector<double> own = highest(averages, receptor, lists[receptor].size());
    note(firstDifference(lists[receptor], own, 0), without);
    note(firstDifference(lists[receptor], own, names.theCase.background), with);
  }
  const Differences& fewer = without.receptors < with.receptors ? without : with;
  if (fewer.receptors == 0) return {};
  const auto& [listed, computed, rank] = *fewer.first;
  const std::string group = names.theCase.groups.front().name;
  return "The ranked list of receptors has other values than the averages of " + group +
         " computed here, at " + grouped(fewer.receptors) + " of " +
         counted(lists.size(), "receptor") + ". Line " + std::to_string(listed.line) +
         ", for example: " + fixed(listed.value, 4) + " at " + receptors.list[listed.receptor].id +
         ", whose highest average no. " + std::to_string(rank) + " is " +
         (computed ? fixed(*computed, 4) : std::string("none at all")) +
         ". It may belong to another run, group or averaging period. Its values are not used.";
}

}  // namespace korventally::engine
