#include "engine/report_results.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/blocks.h"
#include "engine/calendar.h"
#include "engine/clock.h"
#include "engine/columns.h"
#include "engine/concentration_file.h"
#include "engine/control_file.h"
#include "engine/judgement.h"
#include "engine/list_file.h"
#include "engine/receptor_file.h"
#include "engine/report_hours.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

std::string hoursText(std::int64_t hours) {
  return counted(static_cast<std::uint64_t>(hours), "hour");
}

std::string averaged(const Blocks& blocks) {
  return counted(static_cast<std::uint64_t>(blocks.count), "average") + " of " +
         hoursText(blocks.hours) + ", " + blocks.nameOfHour(blocks.start) + " to " +
         blocks.nameOfHour(blocks.end() - 1);
}

std::string maximumLine(const Names& names, const std::string& group, const char* kind,
                        const Place& place) {
  return "  " + left(group, 15) + left(kind, 10) + right(fixed(place.value, 4), 12) + "  " +
         placeColumns(names, place);
}

void reportMisfit(const Names& names, const Averages& averages, const Misfit& misfit,
                  ListFile& list) {
  const Place& worst = misfit.worst;
  const double own = averages.own(0, worst.block, worst.receptor);
  const std::string count =
      misfit.count == 1 ? "In 1 average" : "In " + grouped(misfit.count) + " averages";
  list.line("  " + count + " the groups FACILITY and OTHER together give more than " +
            names.theCase.groups.front().name + " without background,");
  list.line("  more than rounding explains. The worst case: " + fixed(own + worst.value, 4) +
            " against " + fixed(own, 4) + " ug/m**3 at receptor " +
            names.receptors[worst.receptor].id + ",");
  list.line("  from " + names.blocks.nameOf(worst.block) +
            ". The files may belong to different model runs.");
}

// Metres want one decimal, kilometres all those that the receptor file gives.
std::string coordinate(double value) {
  constexpr int kWidest = 9;
  const std::string exact = shortest(value);
  const std::size_t point = exact.find('.');
  const bool finer = point != std::string::npos && exact.size() - point > 2;
  const bool plain = exact.find('e') == std::string::npos;
  return finer && plain && exact.size() <= kWidest ? exact : fixed(value, 1, kWidest);
}

}  // namespace

std::string placeColumns(const Names& names, const Place& place) {
  const Receptor& receptor = names.receptors[place.receptor];
  return left(receptor.id, 12) + right(coordinate(receptor.x), 10) +
         right(coordinate(receptor.y), 10) + "  " + names.blocks.nameOf(place.block);
}

std::string placeHeadings() {
  return left("Receptor", 12) + right("X", 10) + right("Y", 10) + "  " + left("First hour", 13);
}

void reportReceptorFile(const Case& theCase, const Receptors& receptors, ListFile& list) {
  list.line("FILES");
  list.line("  " + left("Receptors", 15) + theCase.receptorFile);
  list.line("  " + left("", 15) + counted(receptors.bytes, "byte") + ", " +
            counted(receptors.lines, "line") + ", " + counted(receptors.list.size(), "receptor"));
}

void reportGroupFile(const SourceGroup& group, const GroupSums& sums, ListFile& list) {
  list.line("  " + left(group.name, 15) + group.file);
  list.line("  " + left("", 15) + counted(sums.bytes, "byte") + ", " + counted(sums.lines, "line") +
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
    list.line("  The background of " + shortest(theCase.background) +
              " ug/m**3 is part of every value of " + theCase.groups.front().name + " below.");
  }
  for (const std::string& line : more) list.line(line);
  list.line();
}

void reportMaxima(const Names& names, const Judgement& judgement, ListFile& list) {
  list.line("HIGHEST AVERAGES (ug/m**3)");
  list.line(
      "  1st: the largest of all receptors' highest values; 2nd: the largest of their "
      "second-highest values");
  list.line("  " + left("Group", 15) + left("Rank", 10) + right("Value", 12) + "  " +
            placeHeadings());
  for (std::size_t i = 0; i < judgement.maxima.size(); ++i) {
    const std::string& name = names.theCase.groups[i].name;
    const Maxima& maxima = judgement.maxima[i];
    list.line(maximumLine(names, name, "1st", maxima.highest));
    if (maxima.second) list.line(maximumLine(names, "", "2nd", *maxima.second));
  }
  list.line();
}

void reportCounts(const Names& names, const Judgement& judgement, ListFile& list) {
  const Case& theCase = names.theCase;
  list.line("JUDGEMENT");
  list.line(fact("Averages judged", grouped(judgement.judged)));
  if (!judgement.leftOut.empty()) {
    list.line(
        fact("Left out as rank 1", grouped(judgement.leftOut.size()) +
                                       " (the highest average of every receptor, listed below)"));
  }
  list.line(fact("Exceedances", grouped(judgement.exceedances) + " (" +
                                    theCase.groups.front().name + " above " +
                                    shortest(theCase.standard) + " ug/m**3)"));
  list.line(fact("Receptors that exceed",
                 grouped(judgement.receptors) + " of " + grouped(names.receptors.size())));
  list.line(fact("Significant exceedances", grouped(judgement.significant) + " (" +
                                                theCase.groups[1].name + " contributes " +
                                                shortest(theCase.sil) + " ug/m**3 or more)"));
  list.line();
}

void reportLeftOut(const Names& names, const Judgement& judgement, ListFile& list) {
  if (judgement.leftOut.empty()) return;
  list.line("RANK 1 AVERAGES LEFT OUT (ug/m**3)");
  list.line("  " + placeHeadings() + right("Value", 12));
  for (const Place& place : judgement.leftOut) {
    list.line("  " + placeColumns(names, place) + right(fixed(place.value, 4), 12));
  }
  list.line();
}

void reportWarnings(const Names& names, const Averages& averages, const Judgement& judgement,
                    const std::vector<std::string>& ofInput, ListFile& list) {
  const Blocks& blocks = names.blocks;
  const bool shortYear = blocks.annual && blocks.hours < hoursOfYearFrom(blocks.start);
  const bool nothingLeft = judgement.judged == 0;
  const bool none = ofInput.empty() && !shortYear && !nothingLeft && judgement.misfit.count == 0;
  list.line("WARNINGS");
  for (const std::string& line : ofInput) list.line(line);
  if (shortYear) {
    list.line("  The annual average covers " + hoursText(blocks.hours) +
              ", which is less than a year.");
  }
  if (nothingLeft) {
    list.line("  Every receptor has one average only, and rank 1 is excluded: nothing was judged.");
  }
  if (judgement.misfit.count > 0) reportMisfit(names, averages, judgement.misfit, list);
  if (none) list.line("  None.");
  list.line();
}

}  // namespace korventally::engine
