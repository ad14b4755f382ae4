#include "engine/warnings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <numeric>
#include <string>
#include <tuple>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/judgement.h"
#include "engine/receptor_file.h"
#include "engine/report_results.h"
#include "engine/rounding.h"
#include "engine/run_years.h"
#include "engine/system_files.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr double kMostBelievable = 1e6;    // ug/m**3
constexpr double kLeastBelievable = 1e-4;  // of the standard or increment

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

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.5G", value);
  return text;
}

// Blanks around a name and the case of its letters tell no two groups apart.
std::string sameName(const std::string& name) {
  std::string key = name.substr(name.find_first_not_of(' '));
  key.erase(key.find_last_not_of(' ') + 1);
  for (char& c : key) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return key;
}

void addGroups(const Case& theCase, const std::vector<GroupSums>& sums, Words& warnings) {
  const std::vector<SourceGroup>& groups = theCase.groups;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const std::string before = "Groups " + std::to_string(i + 1) + " and ";
    for (std::size_t j = i + 1; j < groups.size(); ++j) {
      const std::string both = before + std::to_string(j + 1) + " (" + groups[i].name;
      // Only files of one size can be one file; asking the system takes its time.
      if (sums[i].bytes == sums[j].bytes &&
          sameFile(pathFromText(groups[i].file), pathFromText(groups[j].file))) {
        warnings.push_back(both + " and " + groups[j].name + ") have one concentration file, " +
                           groups[j].file + ".");
      }
      if (sameName(groups[i].name) == sameName(groups[j].name)) {
        warnings.push_back(both + ") have one name.");
      }
    }
  }
}

void addReceptors(const Names& names, Words& warnings) {
  const std::vector<Receptor>& all = names.receptors;
  std::vector<std::size_t> order(all.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto place = [&](std::size_t i) { return std::tuple(all[i].x, all[i].y); };
  std::ranges::stable_sort(order, [&](auto a, auto b) { return place(a) < place(b); });
  std::uint64_t count = 0;
  std::size_t example = all.size(), earlier = 0;
  for (std::size_t i = 1; i < order.size(); ++i) {
    if (place(order[i]) != place(order[i - 1])) continue;
    ++count;
    if (order[i] >= example) continue;
    example = order[i];
    earlier = order[i - 1];
  }
  if (count == 0) return;
  warnings.push_back(counted(count, "receptor") + (count == 1 ? " stands" : " stand") +
                     " where an earlier one stands, for example " + all[example].id + " where " +
                     all[earlier].id + " stands (X " + names.x.text(all[example]) + ", Y " +
                     names.y.text(all[example]) +
                     "). Several groups written into one file look like that.");
}

// Nothing but zeros, or values in another unit.
void addValues(const Case& theCase, const Averages& averages, const Judgement& judgement,
               Words& warnings) {
  Words zero, large;
  double largest = 0;
  for (std::size_t group = 0; group < averages.groups(); ++group) {
    const Place& place = judgement.maxima[group].highest;
    const double highest = averages.own(group, place.block, place.receptor);
    largest = std::max(largest, highest);
    if (highest == 0) zero.push_back(theCase.groups[group].name);
    if (sideOf(highest, kMostBelievable) > 0) large.push_back(theCase.groups[group].name);
  }
  if (!zero.empty()) {
    warnings.push_back("No concentration anywhere: " + joined(zero) +
                       (zero.size() == 1 ? " is" : " are") +
                       " zero at every receptor in every average.");
  }
  if (!large.empty()) {
    warnings.push_back("Averages above 1E6 ug/m**3: " + joined(large) + ", up to " +
                       number(largest) +
                       " ug/m**3. Concentration files must hold g/m**3; do the files hold "
                       "ug/m**3?");
  }
  const Place& place = judgement.maxima.front().highest;
  const double highest = averages.own(0, place.block, place.receptor);
  if (highest > 0 && sideOf(highest, kLeastBelievable * theCase.standard) < 0) {
    warnings.push_back("The highest average of " + theCase.groups.front().name +
                       ", without background, is " + number(highest) +
                       " ug/m**3, below a ten-thousandth of " + theCase.standardText +
                       " ug/m**3. Concentration files must hold g/m**3; were the values divided "
                       "twice?");
  }
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

std::vector<std::string> warningsOf(const Names& names, const std::vector<GroupSums>& groups,
                                    const Averages& averages, const Judgement& judgement) {
  Words warnings;
  const Blocks& blocks = names.blocks;
  if (blocks.annual && blocks.hours < hoursOfYearFrom(blocks.start)) {
    warnings.push_back("The annual average covers " + hoursText(blocks.hours) +
                       ", which is less than a year.");
  }
  if (names.theCase.excludeRank1) addRank1(blocks, judgement, warnings);
  addValues(names.theCase, averages, judgement, warnings);
  addMisfit(names, averages, judgement.misfit, warnings);
  addGroups(names.theCase, groups, warnings);
  addReceptors(names, warnings);
  return warnings;
}

}  // namespace korventally::engine
