#include "engine/report_rows.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/columns.h"
#include "engine/exceedances.h"
#include "engine/judgement.h"
#include "engine/receptor_file.h"
#include "engine/report_results.h"
#include "engine/run_years.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

// The groups named one by one below an exceedance: those that matter, and no more than can be read.
constexpr double kSmallPercent = 1;
constexpr std::size_t kMostNamed = 12;

// The groups behind the facility, the largest contribution first; of equal ones the first group.
std::vector<Place> othersOf(const Averages& averages, const Place& place) {
  std::vector<Place> others;  // the group stands in the place of the receptor
  for (std::size_t group = 2; group < averages.groups(); ++group) {
    others.push_back({0, group, averages.own(group, place.block, place.receptor)});
  }
  std::ranges::sort(others, comesFirst);
  return others;
}

std::size_t namedOf(const std::vector<Place>& others, double total) {
  std::size_t named = 0;
  while (named < std::min(others.size(), kMostNamed) &&
         100 * others[named].value >= kSmallPercent * total) {
    ++named;
  }
  // A single small one has a name too.
  return named + 1 == others.size() ? named + 1 : named;
}

void addShares(const Names& names, const std::vector<Place>& others, double total,
               ExceedanceRow& row) {
  const std::size_t named = namedOf(others, total);
  for (std::size_t i = 0; i < named; ++i) {
    row.named.push_back({names.theCase.groups[others[i].receptor].name, fixed(others[i].value, 4),
                         percent(others[i].value, total)});
  }
  double rest = 0;
  for (std::size_t i = named; i < others.size(); ++i) rest += others[i].value;
  if (named < others.size()) {
    row.rest = "and " + counted(others.size() - named, "group") + ", together " +
               percent(rest, total) + " %";
  }
}

}  // namespace

std::string percent(double contribution, double total) {
  const double share = 100 * contribution / total;
  return share < 999.95 ? fixed(share, 1) : ">999";
}

// Any group but the first two stands beside no limit.
std::string groupFigure(const Names& names, std::size_t group, double value) {
  if (group == 0) return figure(value, names.theCase.standard);
  return group == 1 ? figure(value, names.theCase.sil) : fixed(value, 4);
}

PlaceRow placeRow(const Names& names, const Place& place) {
  const Receptor& receptor = names.receptors[place.receptor];
  return {receptor.id, names.x.text(receptor), names.y.text(receptor),
          names.blocks.nameOf(place.block)};
}

std::vector<MaximumRow> maximumRows(const Names& names, const Judgement& judgement) {
  std::vector<MaximumRow> rows;
  for (std::size_t i = 0; i < judgement.maxima.size(); ++i) {
    const Maxima& maxima = judgement.maxima[i];
    rows.push_back({names.theCase.groups[i].name, "1st",
                    groupFigure(names, i, maxima.highest.value), placeRow(names, maxima.highest)});
    if (!maxima.second) continue;
    rows.push_back(
        {"", "2nd", groupFigure(names, i, maxima.second->value), placeRow(names, *maxima.second)});
  }
  return rows;
}

ExceedanceRow exceedanceRow(const Names& names, const Averages& averages, const Place& place) {
  const double total = averages.total(0, place.block, place.receptor);
  const double facility = averages.own(1, place.block, place.receptor);
  ExceedanceRow row;
  row.place = placeRow(names, place);
  row.hours = std::to_string(averages.validHours(place.block));
  row.total = groupFigure(names, 0, total);
  row.facility = groupFigure(names, 1, facility);
  row.percent = percent(facility, total);
  row.significant = reaches(facility, names.theCase.sil) ? "yes" : "no";
  row.leftOver = fixed(averages.leftOver(place.block, place.receptor), 4);
  addShares(names, othersOf(averages, place), total, row);
  return row;
}

bool hidesSignificant(const Names& names, const Averages& averages, const Judgement& judgement) {
  const auto significant = [&](const Place& place) {
    return reaches(averages.own(1, place.block, place.receptor), names.theCase.sil);
  };
  const auto shown = std::ranges::count_if(judgement.exceedances.largest, significant);
  return static_cast<std::uint64_t>(shown) != judgement.exceedances.significant;
}

// The table shows the first of them; what it leaves out is smaller or equal.
std::string moreText(std::uint64_t all, std::size_t shown, const char* noun) {
  if (all <= shown) return {};
  return "and " + counted(all - shown, noun) + " more, all of them smaller or equal.";
}

ReceptorRow receptorRow(const Names& names, const AtReceptor& at) {
  return {placeRow(names, at.highest),
          grouped(at.exceedances),
          grouped(at.significant),
          groupFigure(names, 0, at.highest.value),
          groupFigure(names, 1, at.contribution.value),
          names.blocks.nameOf(at.contribution.block)};
}

LeftOutRow leftOutRow(const Names& names, const Judgement& judgement, const Place& place) {
  const auto year = std::ranges::upper_bound(judgement.years, place.block, {}, &RunYear::endBlock);
  return {std::to_string(year - judgement.years.begin() + 1), groupFigure(names, 0, place.value),
          placeRow(names, place)};
}

}  // namespace korventally::engine
