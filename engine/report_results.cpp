#include "engine/report_results.h"

#include <cstddef>
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
#include "engine/text.h"
#include "engine/wall_time.h"

namespace korventally::engine {
namespace {

std::string averaged(const Blocks& blocks) {
  return counted(static_cast<std::uint64_t>(blocks.count), "average") + " of " +
         hoursText(blocks.hours) + ", " + blocks.nameOfHour(blocks.start) + " to " +
         blocks.nameOfHour(blocks.end() - 1);
}

// A total beside the standard, the facility beside the SIL, any other group beside nothing.
std::string groupFigure(const Names& names, std::size_t group, double value) {
  if (group == 0) return figure(value, names.theCase.standard);
  return group == 1 ? figure(value, names.theCase.sil) : fixed(value, 4);
}

std::string maximumLine(const Names& names, std::size_t group, bool second, const Place& place) {
  const std::string& name = names.theCase.groups[group].name;
  return "  " + left(second ? "" : name, 15) + left(second ? "2nd" : "1st", 6) +
         right(groupFigure(names, group, place.value), 16) + "  " + placeColumns(names, place);
}

std::string sizeOf(std::uint64_t bytes, std::int64_t written) {
  return counted(bytes, "byte") + ", written " + localTimeText(written);
}

std::string placeInWords(const Names& names, const Place& place) {
  const Receptor& receptor = names.receptors[place.receptor];
  return "receptor " + receptor.id + " (X " + names.x.text(receptor) + ", Y " +
         names.y.text(receptor) + "), first hour " + names.blocks.nameOf(place.block);
}

void reportContribution(const Names& names, const Averages& averages, const Judgement& judgement,
                        ListFile& list) {
  const Case& theCase = names.theCase;
  const AtReceptor* most = judgement.exceedances.mostContributed();
  if (most == nullptr) {
    list.line(fact("Largest contribution", "none: nothing exceeds"));
    return;
  }
  const Place& place = most->contribution;
  const double total = averages.total(0, place.block, place.receptor);
  list.line(fact("Largest contribution",
                 figure(place.value, theCase.sil) + " ug/m**3 of " + theCase.groups[1].name +
                     " at an exceedance" +
                     (judgement.exceedances.significant > 0
                          ? ""
                          : ", below " + theCase.silText + ": none is significant")));
  list.line(fact("  Where and when", placeInWords(names, place)));
  list.line(fact("  Total there", figure(total, theCase.standard) + " ug/m**3"));
}

std::string leftOutText(const Judgement& judgement) {
  const std::string years =
      judgement.years.size() == 1 ? "" : " in each year of the run, counted from its start";
  return grouped(judgement.leftOut.size()) + " (the highest average of every receptor" + years +
         ", listed below)";
}

}  // namespace

std::string placeColumns(const Names& names, const Place& place) {
  const Receptor& receptor = names.receptors[place.receptor];
  return left(receptor.id, 12) + right(names.x.text(receptor), names.x.width() + 1) +
         right(names.y.text(receptor), names.y.width() + 1) + "  " +
         names.blocks.nameOf(place.block);
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

void reportAverages(const Case& theCase, const Blocks& blocks, const std::vector<std::string>& more,
                    ListFile& list) {
  list.line();
  list.line("AVERAGES");
  list.line("  " + averaged(blocks) + (blocks.annual ? " (annual)" : ""));
  if (blocks.unused > 0) {
    list.line("  The last " + hoursText(blocks.unused) +
              " of the run fill no averaging period and " + (blocks.unused == 1 ? "is" : "are") +
              " not used.");
  }
  if (theCase.background > 0) {
    list.line("  The background of " + theCase.backgroundText +
              " ug/m**3 is part of every value of " + theCase.groups.front().name + " below.");
  }
  for (const std::string& line : more) list.line(line);
  list.line();
}

void reportJudgement(const Names& names, const Averages& averages, const Judgement& judgement,
                     const std::string& table, ListFile& list) {
  const Case& theCase = names.theCase;
  const Exceedances& exceedances = judgement.exceedances;
  list.line("JUDGEMENT");
  list.line(fact("Averages judged", grouped(judgement.judged)));
  if (!judgement.leftOut.empty()) {
    list.line(fact("Left out as rank 1", leftOutText(judgement)));
  }
  list.line(fact("Exceedances", grouped(exceedances.count) + " (" + theCase.groups.front().name +
                                    " above " + theCase.standardText + " ug/m**3)"));
  list.line(fact("Receptors that exceed",
                 grouped(exceedances.receptors()) + " of " + grouped(names.receptors.size())));
  list.line(fact("Significant exceedances", grouped(exceedances.significant) + " (" +
                                                theCase.groups[1].name + " contributes " +
                                                theCase.silText + " ug/m**3 or more)"));
  reportContribution(names, averages, judgement, list);
  if (!table.empty()) list.line(fact("Every exceedance", table));
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
  for (std::size_t i = 0; i < judgement.maxima.size(); ++i) {
    const Maxima& maxima = judgement.maxima[i];
    list.line(maximumLine(names, i, false, maxima.highest));
    if (maxima.second) list.line(maximumLine(names, i, true, *maxima.second));
  }
  list.line();
}

void reportReceptors(const Names& names, const Judgement& judgement, ListFile& list) {
  const Case& theCase = names.theCase;
  if (judgement.exceedances.count == 0) return;
  list.line("RECEPTORS THAT EXCEED (ug/m**3)");
  list.line("  Number of exceedances, and of significant ones; the highest total; the largest");
  list.line("  contribution of " + theCase.groups[1].name + " to an exceedance");
  const std::string heading = placeHeadings(names);
  list.line("  " + heading.substr(0, heading.find("  First hour")) + right("Number", 8) +
            right("SIL", 8) + right("Highest", 15) + "  First hour   " + right("Contribution", 15) +
            "  First hour");
  for (const AtReceptor& at : judgement.exceedances.atReceptors) {
    if (at.exceedances == 0) continue;
    const std::string place = placeColumns(names, at.highest);
    const std::string hour = "  " + names.blocks.nameOf(at.highest.block);
    list.line("  " + place.substr(0, place.size() - hour.size()) +
              right(grouped(at.exceedances), 8) + right(grouped(at.significant), 8) +
              right(figure(at.highest.value, theCase.standard), 15) + hour +
              right(figure(at.contribution.value, theCase.sil), 15) + "  " +
              names.blocks.nameOf(at.contribution.block));
  }
  list.line();
}

void reportLeftOut(const Names& names, const Judgement& judgement, ListFile& list) {
  if (judgement.leftOut.empty()) return;
  list.line("RANK 1 AVERAGES LEFT OUT (ug/m**3)");
  list.line("  Year  " + placeHeadings(names) + right("Value", 16));
  std::size_t year = 0;
  for (const Place& place : judgement.leftOut) {
    while (place.block >= judgement.years[year].endBlock) ++year;
    list.line(right(std::to_string(year + 1), 6) + "  " + placeColumns(names, place) +
              right(figure(place.value, names.theCase.standard), 16));
  }
  list.line();
}

}  // namespace korventally::engine
