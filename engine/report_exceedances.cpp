#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/report_results.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kWidest = 132;
constexpr const char* kBar = "      | ";

// The groups named one by one below an exceedance: those that matter, and no more than can be read.
constexpr double kSmallPercent = 1;
constexpr std::size_t kMostNamed = 12;

std::string percent(double contribution, double total) {
  const double share = 100 * contribution / total;
  return share < 999.95 ? fixed(share, 1) : ">999";
}

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

std::string cellOf(const std::string& name, double contribution, double total) {
  return left(name, 13) + right(fixed(contribution, 4), 12) +
         right(percent(contribution, total), 6) + " %";
}

std::vector<std::string> cellsOf(const Case& theCase, const Averages& averages,
                                 const Place& place) {
  const double total = averages.total(0, place.block, place.receptor);
  const std::vector<Place> others = othersOf(averages, place);
  const std::size_t named = namedOf(others, total);
  std::vector<std::string> cells;
  cells.reserve(named + 1);
  for (std::size_t i = 0; i < named; ++i) {
    cells.push_back(cellOf(theCase.groups[others[i].receptor].name, others[i].value, total));
  }
  double rest = 0;
  for (std::size_t i = named; i < others.size(); ++i) rest += others[i].value;
  if (named < others.size()) {
    cells.push_back("and " + counted(others.size() - named, "group") + ", together " +
                    percent(rest, total) + " %");
  }
  return cells;
}

void writeOthers(const std::vector<std::string>& cells, ListFile& list) {
  std::string line;
  for (const std::string& cell : cells) {
    if (!line.empty() && line.size() + 2 + cell.size() > kWidest) {
      list.line(line);
      line.clear();
    }
    line += (line.empty() ? kBar : "  ") + cell;
  }
  if (!line.empty()) list.line(line);
}

void writeExceedance(const Names& names, const Averages& averages, std::size_t number,
                     const Place& place, ListFile& list) {
  const Case& theCase = names.theCase;
  const double total = averages.total(0, place.block, place.receptor);
  const double facility = averages.own(1, place.block, place.receptor);
  list.line(right(std::to_string(number), 4) + "  " + placeColumns(names, place) +
            right(std::to_string(averages.validHours(place.block)), 6) +
            right(figure(total, theCase.standard), 15) + right(figure(facility, theCase.sil), 15) +
            right(percent(facility, total), 7) +
            right(reaches(facility, theCase.sil) ? "yes" : "no", 5) +
            right(fixed(averages.leftOver(place.block, place.receptor), 4), 13));
  writeOthers(cellsOf(theCase, averages, place), list);
}

void writeTable(const Names& names, const Averages& averages, const std::vector<Place>& places,
                ListFile& list) {
  const std::vector<SourceGroup>& groups = names.theCase.groups;
  const std::string heading = right("No", 4) + "  " + placeHeadings(names) + right("Hours", 6) +
                              right(groups[0].name, 15) + right(groups[1].name, 15) +
                              right("%", 7) + right("SIL", 5) + right("Left over", 13);
  list.line(heading);
  list.line(std::string(heading.size(), '-'));
  for (std::size_t i = 0; i < places.size(); ++i) {
    writeExceedance(names, averages, i + 1, places[i], list);
  }
}

void explainColumns(const Case& theCase, ListFile& list) {
  const std::string& total = theCase.groups[0].name;
  std::string text = total + " and all contributions in ug/m**3, % of " + total;
  text += "; Hours: the valid ones; SIL: yes where " + theCase.groups[1].name;
  text += " reaches the significant impact level; Left over: " + total;
  text += " less the background and all other groups. Below each exceedance the other groups, the";
  text += " largest contribution first.";
  for (const std::string& line : wrapped(text)) list.line(line);
}

std::uint64_t significantAmong(const Names& names, const Averages& averages,
                               const std::vector<Place>& places) {
  const auto significant = [&](const Place& place) {
    return reaches(averages.own(1, place.block, place.receptor), names.theCase.sil);
  };
  return static_cast<std::uint64_t>(std::ranges::count_if(places, significant));
}

// The table shows the first of them; what it leaves out is smaller or equal.
void countMore(std::uint64_t all, std::size_t shown, const char* noun, ListFile& list) {
  if (all > shown)
    list.line("  and " + counted(all - shown, noun) + " more, all of them smaller or equal.");
}

}  // namespace

void reportExceedances(const Names& names, const Averages& averages, const Judgement& judgement,
                       ListFile& list) {
  const Exceedances& exceedances = judgement.exceedances;
  list.line("EXCEEDANCES, the largest first");
  if (exceedances.count == 0) {
    list.line("  None.");
    list.line();
    return;
  }
  explainColumns(names.theCase, list);
  writeTable(names, averages, exceedances.largest, list);
  countMore(exceedances.count, exceedances.largest.size(), "exceedance", list);
  list.line();
  if (significantAmong(names, averages, exceedances.largest) == exceedances.significant) return;
  list.line("SIGNIFICANT EXCEEDANCES, the largest contribution of " + names.theCase.groups[1].name +
            " first");
  writeTable(names, averages, exceedances.contributions, list);
  countMore(exceedances.significant, exceedances.contributions.size(), "significant exceedance",
            list);
  list.line();
}

}  // namespace korventally::engine
