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
#include "engine/report_rows.h"

namespace korventally::engine {
namespace {

constexpr std::size_t kWidest = 132;
constexpr const char* kBar = "      | ";

std::vector<std::string> cellsOf(const ExceedanceRow& row) {
  std::vector<std::string> cells;
  cells.reserve(row.named.size() + 1);
  for (const ShareRow& share : row.named) {
    cells.push_back(left(share.group, 13) + right(share.contribution, 12) +
                    right(share.percent, 6) + " %");
  }
  if (!row.rest.empty()) cells.push_back(row.rest);
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
  const ExceedanceRow row = exceedanceRow(names, averages, place);
  list.line(right(std::to_string(number), 4) + "  " + placeColumns(names, row.place) +
            right(row.hours, 6) + right(row.total, 15) + right(row.facility, 15) +
            right(row.percent, 7) + right(row.significant, 5) + right(row.leftOver, 13));
  writeOthers(cellsOf(row), list);
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

void countMore(std::uint64_t all, std::size_t shown, const char* noun, ListFile& list) {
  const std::string more = moreText(all, shown, noun);
  if (!more.empty()) list.line("  " + more);
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
  if (!hidesSignificant(names, averages, judgement)) return;
  list.line("SIGNIFICANT EXCEEDANCES, the largest contribution of " + names.theCase.groups[1].name +
            " first");
  writeTable(names, averages, exceedances.contributions, list);
  countMore(exceedances.significant, exceedances.contributions.size(), "significant exceedance",
            list);
  list.line();
}

}  // namespace korventally::engine
