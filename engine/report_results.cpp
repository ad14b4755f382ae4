#include "engine/report_results.h"

#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/clock.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/receptor_file.h"
#include "engine/report_hours.h"
#include "engine/report_rows.h"
#include "engine/text.h"
#include "engine/wall_time.h"

namespace korventally::engine {
namespace {

std::string averaged(const Blocks& blocks) {
  return counted(static_cast<std::uint64_t>(blocks.count), "average") + " of " +
         hoursText(blocks.hours) + ", " + blocks.nameOfHour(blocks.start) + " to " +
         blocks.nameOfHour(blocks.end() - 1);
}

std::string sizeOf(std::uint64_t bytes, std::int64_t written) {
  return counted(bytes, "byte") + ", written " + localTimeText(written);
}

std::string placeInWords(const Names& names, const Place& place) {
  const Receptor& receptor = names.receptors[place.receptor];
  return "receptor " + receptor.id + " (X " + names.x.text(receptor) + ", Y " +
         names.y.text(receptor) + "), first hour " + names.blocks.nameOf(place.block);
}

void addContribution(const Names& names, const Averages& averages, const Judgement& judgement,
                     std::vector<Fact>& facts) {
  const Case& theCase = names.theCase;
  const AtReceptor* most = judgement.exceedances.mostContributed();
  if (most == nullptr) {
    facts.push_back({"Largest contribution", "none: nothing exceeds"});
    return;
  }
  const Place& place = most->contribution;
  const double total = averages.total(0, place.block, place.receptor);
  facts.push_back(
      {"Largest contribution", groupFigure(names, 1, place.value) + " ug/m**3 of " +
                                   theCase.groups[1].name + " at an exceedance" +
                                   (judgement.exceedances.significant > 0
                                        ? ""
                                        : ", below " + theCase.silText + ": none is significant")});
  facts.push_back({"  Where and when", placeInWords(names, place)});
  facts.push_back({"  Total there", groupFigure(names, 0, total) + " ug/m**3"});
}

std::string leftOutText(const Judgement& judgement) {
  const std::string years =
      judgement.years.size() == 1 ? "" : " in each year of the run, counted from its start";
  return grouped(judgement.leftOut.size()) + " (the highest average of every receptor" + years +
         ", listed below)";
}

}  // namespace

std::string placeColumns(const Names& names, const PlaceRow& row) {
  return left(row.receptor, 12) + right(row.x, names.x.width() + 1) +
         right(row.y, names.y.width() + 1) + "  " + row.hour;
}

std::string placeHeadings(const Names& names) {
  return left("Receptor", 12) + right("X", names.x.width() + 1) + right("Y", names.y.width() + 1) +
         "  " + left("First hour", 13);
}

void reportReceptorFile(const Case& theCase, const Receptors& receptors, std::int64_t written,
                        ListFile& list) {
  list.line("FILES");
  list.line("  " + left("Receptors", 15) + theCase.receptorFile);
  list.line("  " + left("", 15) + sizeOf(receptors.bytes, written) + ", " +
            counted(receptors.lines, "line") + ", " + counted(receptors.list.size(), "receptor"));
}

void reportGroupFile(const SourceGroup& group, const GroupSums& sums, std::int64_t written,
                     ListFile& list) {
  list.line("  " + left(group.name, 15) + group.file);
  list.line("  " + left("", 15) + sizeOf(sums.bytes, written) + ", " + counted(sums.lines, "line") +
            ", " + counted(sums.hours, "hour") + " (" + dateText(sums.first, sums.hourCount) +
            " to " + dateText(sums.last, sums.hourCount) + "), " +
            counted(sums.columns, "receptor") + (sums.namesReceptors ? " by name" : ""));
  list.line("  " + left("", 15) + clockText(sums.hourCount) + "; " + markedText(sums));
}

std::vector<std::string> linesOfAverages(const Case& theCase, const Blocks& blocks,
                                         const std::vector<std::string>& more) {
  std::vector<std::string> lines = {"  " + averaged(blocks) + (blocks.annual ? " (annual)" : "")};
  if (blocks.unused > 0) {
    lines.push_back("  The last " + hoursText(blocks.unused) + " of the run " +
                    (blocks.unused == 1 ? "fills no averaging period and is"
                                        : "fill no averaging period and are") +
                    " not used.");
  }
  if (theCase.background > 0) {
    lines.push_back("  The background of " + theCase.backgroundText +
                    " ug/m**3 is part of every value of " + theCase.groups.front().name +
                    " below.");
  }
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

void reportAverages(const std::vector<std::string>& lines, ListFile& list) {
  list.line();
  list.line("AVERAGES");
  for (const std::string& line : lines) list.line(line);
  list.line();
}

std::vector<Fact> factsOfJudgement(const Names& names, const Averages& averages,
                                   const Judgement& judgement) {
  const Case& theCase = names.theCase;
  const Exceedances& exceedances = judgement.exceedances;
  std::vector<Fact> facts = {{"Averages judged", grouped(judgement.judged)}};
  if (!judgement.leftOut.empty()) facts.push_back({"Left out as rank 1", leftOutText(judgement)});
  facts.push_back({"Exceedances", grouped(exceedances.count) + " (" + theCase.groups.front().name +
                                      " above " + theCase.standardText + " ug/m**3)"});
  facts.push_back({"Receptors that exceed",
                   grouped(exceedances.receptors()) + " of " + grouped(names.receptors.size())});
  facts.push_back({"Significant exceedances", grouped(exceedances.significant) + " (" +
                                                  theCase.groups[1].name + " contributes " +
                                                  theCase.silText + " ug/m**3 or more)"});
  addContribution(names, averages, judgement, facts);
  return facts;
}

void reportFacts(const char* title, const std::vector<Fact>& facts, ListFile& list) {
  list.line(title);
  for (const Fact& fact : facts) {
    if (!fact.value.empty()) list.line(factLine(fact));
  }
  list.line();
}

void reportWarnings(const std::vector<std::string>& warnings, ListFile& list) {
  list.line("WARNINGS");
  for (const std::string& warning : warnings) {
    for (const std::string& line : wrapped(warning)) list.line(line);
  }
  if (warnings.empty()) list.line("  None.");
  list.line();
}

void reportMaxima(const Names& names, const Judgement& judgement, ListFile& list) {
  list.line("HIGHEST AVERAGES (ug/m**3)");
  list.line(
      "  1st: the largest of all receptors' highest values; 2nd: the largest of their "
      "second-highest values");
  list.line("  " + left("Group", 15) + left("Rank", 6) + right("Value", 16) + "  " +
            placeHeadings(names));
  for (const MaximumRow& row : maximumRows(names, judgement)) {
    list.line("  " + left(row.group, 15) + left(row.rank, 6) + right(row.value, 16) + "  " +
              placeColumns(names, row.place));
  }
  list.line();
}

void reportReceptors(const Names& names, const Judgement& judgement, ListFile& list) {
  if (judgement.exceedances.count == 0) return;
  list.line("RECEPTORS THAT EXCEED (ug/m**3)");
  list.line("  Number of exceedances, and of significant ones; the highest total; the largest");
  list.line("  contribution of " + names.theCase.groups[1].name + " to an exceedance");
  const std::string heading = placeHeadings(names);
  list.line("  " + heading.substr(0, heading.find("  First hour")) + right("Number", 8) +
            right("SIL", 8) + right("Highest", 15) + "  First hour   " + right("Contribution", 15) +
            "  First hour");
  for (const AtReceptor& at : judgement.exceedances.atReceptors) {
    if (at.exceedances == 0) continue;
    const ReceptorRow row = receptorRow(names, at);
    const std::string place = placeColumns(names, row.highest);
    const std::string hour = "  " + row.highest.hour;
    list.line("  " + place.substr(0, place.size() - hour.size()) + right(row.exceedances, 8) +
              right(row.significant, 8) + right(row.total, 15) + hour +
              right(row.contribution, 15) + "  " + row.contributionHour);
  }
  list.line();
}

void reportLeftOut(const Names& names, const Judgement& judgement, ListFile& list) {
  if (judgement.leftOut.empty()) return;
  list.line("RANK 1 AVERAGES LEFT OUT (ug/m**3)");
  list.line("  Year  " + placeHeadings(names) + right("Value", 16));
  for (const Place& place : judgement.leftOut) {
    const LeftOutRow row = leftOutRow(names, judgement, place);
    list.line(right(row.year, 6) + "  " + placeColumns(names, row.place) + right(row.value, 16));
  }
  list.line();
}

}  // namespace korventally::engine
