#include "engine/warnings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/columns.h"
#include "engine/judgement.h"
#include "engine/report_results.h"
#include "engine/run_years.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

using Words = std::vector<std::string>;

// "A", "A and B", "A, B and C".
std::string joined(const Words& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " and " : ", ";
    text += words[i];
  }
  return text;
}

std::string hoursText(std::int64_t hours) {
  return counted(static_cast<std::uint64_t>(hours), "hour");
}

void addRank1(const Blocks& blocks, const Judgement& judgement, Words& warnings) {
  const std::vector<RunYear>& years = judgement.years;
  if (blocks.count == 1) {
    warnings.emplace_back(
        "Rank 1 is excluded, but every receptor has one average only: nothing was left out, and "
        "it was judged.");
    return;
  }
  const auto single = std::ranges::count_if(years, [](auto& year) { return year.blocks() == 1; });
  if (single > 0) {
    warnings.push_back("Rank 1 is excluded, but the run has " +
                       counted(static_cast<std::uint64_t>(single), "year") +
                       " with one average only: nothing was left out there.");
  }
  const LastYear last = lastYearOf(blocks, years.size());
  if (years.size() > 1 && years.back().blocks() > 1 && last.hours < last.whole) {
    warnings.push_back("Year " + std::to_string(years.size()) + " of the run has " +
                       hoursText(last.hours) + " of " +
                       grouped(static_cast<std::uint64_t>(last.whole)) +
                       ", and rank 1 was left out for it too.");
  }
}

void addMisfit(const Names& names, const Averages& averages, const Misfit& misfit,
               Words& warnings) {
  if (misfit.count == 0) return;
  const Place& worst = misfit.worst;
  const double own = averages.own(0, worst.block, worst.receptor);
  Words others;
  for (std::size_t group = 1; group < averages.groups(); ++group) {
    others.push_back(names.theCase.groups[group].name);
  }
  warnings.push_back(
      "In " + counted(misfit.count, "average") + " the group" + (others.size() == 1 ? " " : "s ") +
      joined(others) + (others.size() == 1 ? " gives" : " together give") + " more than " +
      names.theCase.groups.front().name +
      " without background, more than rounding explains. The worst case: " +
      fixed(own + worst.value, 4) + " against " + fixed(own, 4) + " ug/m**3 at receptor " +
      names.receptors[worst.receptor].id + ", from " + names.blocks.nameOf(worst.block) +
      ". The files may belong to different model runs.");
}

}  // namespace

std::vector<std::string> warningsOf(const Names& names, const Averages& averages,
                                    const Judgement& judgement) {
  Words warnings;
  const Blocks& blocks = names.blocks;
  if (blocks.annual && blocks.hours < hoursOfYearFrom(blocks.start)) {
    warnings.push_back("The annual average covers " + hoursText(blocks.hours) +
                       ", which is less than a year.");
  }
  if (names.theCase.excludeRank1) addRank1(blocks, judgement, warnings);
  addMisfit(names, averages, judgement.misfit, warnings);
  return warnings;
}

}  // namespace korventally::engine
