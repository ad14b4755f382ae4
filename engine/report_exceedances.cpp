#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
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

std::string percent(double share) { return share < 999.95 ? fixed(share, 1) : ">999"; }

std::string cell(double contribution, double total) {
  const double share = total > 0 ? 100 * contribution / total : 0;
  return " " + right(fixed(contribution, 3, 8), 8) + right(percent(share), 6);
}

// Puts the cells behind the row's own columns and, when they do not fit, on lines below.
void writeRow(const std::string& row, const std::vector<std::string>& cells, ListFile& list) {
  std::string line = row;
  for (const std::string& cell : cells) {
    if (line.size() + cell.size() > kWidest) {
      list.line(line);
      line = kContinued;
    }
    line += cell;
  }
  list.line(line);
}

void writeHeadings(const Case& theCase, ListFile& list) {
  std::vector<std::string> names, units;
  for (std::size_t i = 1; i < theCase.groups.size(); ++i) {
    names.push_back(right(theCase.groups[i].name, kCell));
    units.push_back(right("ug/m**3     %", kCell));
  }
  const std::string row = right("No", 4) + "  " + placeHeadings() +
                          right(theCase.groups.front().name, 14) + right("SIL", 4);
  writeRow(row, names, list);
  // The units stand under the first line of names only; the lines below read the same way.
  const std::size_t beside = std::min(units.size(), (kWidest - row.size()) / kCell);
  units.resize(beside);
  writeRow(std::string(row.size(), ' '), units, list);
  list.line(std::string(row.size() + beside * kCell, '-'));
}

void writeExceedance(const Names& names, const Averages& averages, std::size_t number,
                     const Place& place, ListFile& list) {
  std::vector<std::string> cells;
  for (std::size_t group = 1; group < averages.groups(); ++group) {
    cells.push_back(cell(averages.own(group, place.block, place.receptor), place.value));
  }
  const double facility = averages.own(1, place.block, place.receptor);
  const bool significant = reaches(facility, names.theCase.sil);
  writeRow(right(std::to_string(number), 4) + "  " + placeColumns(names, place) +
               right(fixed(place.value, 4), 14) + right(significant ? "yes" : "no", 4),
           cells, list);
}

}  // namespace

void reportExceedances(const Names& names, const Averages& averages, const Judgement& judgement,
                       ListFile& list) {
  const Case& theCase = names.theCase;
  list.line("EXCEEDANCES, the largest first");
  if (judgement.exceedances == 0) {
    list.line("  None.");
    list.line();
    return;
  }
  list.line("  " + theCase.groups.front().name + " in ug/m**3; SIL: yes where " +
            theCase.groups[1].name + " reaches the significant impact level; then the");
  list.line("  contribution of each group in ug/m**3 and in per cent of " +
            theCase.groups.front().name);
  writeHeadings(theCase, list);
  for (std::size_t i = 0; i < judgement.largest.size(); ++i) {
    writeExceedance(names, averages, i + 1, judgement.largest[i], list);
  }
  const std::uint64_t more = judgement.exceedances - judgement.largest.size();
  if (more > 0)
    list.line("  and " + counted(more, "exceedance") + " more, all of them smaller or equal.");
  list.line();
}

}  // namespace korventally::engine
