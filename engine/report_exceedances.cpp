#include <algorithm>
#include <string>
#include <vector>

#include "engine/columns.h"
#include "engine/report_results.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

// One group's contribution: " 1234.567 100.0".
constexpr std::size_t kCell = 15;
constexpr std::size_t kWidest = 132;
// Begins the lines that a row continues on. A line of blanks and one group's name could be taken
// for the verdict: "RUN COMPLETED" is a name of 13 characters.
constexpr const char* kContinued = "    | ";

std::string Percent(double share) { return share < 999.95 ? Fixed(share, 1) : ">999"; }

std::string Cell(double contribution, double total) {
  const double share = total > 0 ? 100 * contribution / total : 0;
  return " " + Right(Fixed(contribution, 3, 8), 8) + Right(Percent(share), 6);
}

// Puts the cells behind the row's own columns and, when they do not fit, on lines below.
void WriteRow(const std::string& row, const std::vector<std::string>& cells, ListFile& list) {
  std::string line = row;
  for (const std::string& cell : cells) {
    if (line.size() + cell.size() > kWidest) {
      list.Line(line);
      line = kContinued;
    }
    line += cell;
  }
  list.Line(line);
}

void WriteHeadings(const Case& the_case, ListFile& list) {
  std::vector<std::string> names, units;
  for (std::size_t i = 1; i < the_case.groups.size(); ++i) {
    names.push_back(Right(the_case.groups[i].name, kCell));
    units.push_back(Right("ug/m**3     %", kCell));
  }
  const std::string row = Right("No", 4) + "  " + PlaceHeadings() +
                          Right(the_case.groups.front().name, 14) + Right("SIL", 4);
  WriteRow(row, names, list);
  // The units stand under the first line of names only; the lines below read the same way.
  const std::size_t beside = std::min(units.size(), (kWidest - row.size()) / kCell);
  units.resize(beside);
  WriteRow(std::string(row.size(), ' '), units, list);
  list.Line(std::string(row.size() + beside * kCell, '-'));
}

void WriteExceedance(const Names& names, const Averages& averages, std::size_t number,
                     const Place& place, ListFile& list) {
  std::vector<std::string> cells;
  for (std::size_t group = 1; group < averages.groups(); ++group) {
    cells.push_back(Cell(averages.Own(group, place.block, place.receptor), place.value));
  }
  const double facility = averages.Own(1, place.block, place.receptor);
  const bool significant = Reaches(facility, names.the_case.sil);
  WriteRow(Right(std::to_string(number), 4) + "  " + PlaceColumns(names, place) +
               Right(Fixed(place.value, 4), 14) + Right(significant ? "yes" : "no", 4),
           cells, list);
}

}  // namespace

void ReportExceedances(const Names& names, const Averages& averages, const Judgement& judgement,
                       ListFile& list) {
  const Case& the_case = names.the_case;
  list.Line("EXCEEDANCES, the largest first");
  if (judgement.exceedances == 0) {
    list.Line("  None.");
    list.Line();
    return;
  }
  list.Line("  " + the_case.groups.front().name + " in ug/m**3; SIL: yes where " +
            the_case.groups[1].name + " reaches the significant impact level; then the");
  list.Line("  contribution of each group in ug/m**3 and in per cent of " +
            the_case.groups.front().name);
  WriteHeadings(the_case, list);
  for (std::size_t i = 0; i < judgement.largest.size(); ++i) {
    WriteExceedance(names, averages, i + 1, judgement.largest[i], list);
  }
  const std::uint64_t more = judgement.exceedances - judgement.largest.size();
  if (more > 0)
    list.Line("  and " + Counted(more, "exceedance") + " more, all of them smaller or equal.");
  list.Line();
}

}  // namespace korventally::engine
