#include "engine/report_results.h"

#include <cstdint>

#include "engine/columns.h"
#include "engine/text.h"

namespace korventally::engine {

namespace {

std::string Hours(std::int64_t hours) { return Counted(static_cast<std::uint64_t>(hours), "hour"); }

std::string Averaged(const Blocks& blocks) {
  return Counted(static_cast<std::uint64_t>(blocks.count), "average") + " of " +
         Hours(blocks.hours) + ", " + DateText(blocks.start) + " to " + DateText(blocks.end() - 1);
}

std::string MaximumLine(const Names& names, const std::string& group, const char* kind,
                        const Place& place) {
  return "  " + Left(group, 15) + Left(kind, 10) + Right(Fixed(place.value, 4), 12) + "  " +
         PlaceColumns(names, place);
}

void ReportMisfit(const Names& names, const Averages& averages, const Misfit& misfit,
                  ListFile& list) {
  const Place& worst = misfit.worst;
  const double own = averages.Own(0, worst.block, worst.receptor);
  const std::string count =
      misfit.count == 1 ? "In 1 average" : "In " + Grouped(misfit.count) + " averages";
  list.Line("  " + count + " the groups FACILITY and OTHER together give more than " +
            names.the_case.groups.front().name + " without background,");
  list.Line("  more than rounding explains. The worst case: " + Fixed(own + worst.value, 4) +
            " against " + Fixed(own, 4) + " ug/m**3 at receptor " +
            names.receptors[worst.receptor].id + ",");
  list.Line("  from " + DateText(names.blocks.StartOf(static_cast<std::int64_t>(worst.block))) +
            ". The files may belong to different model runs.");
}

// Metres want one decimal, kilometres all those that the receptor file gives.
std::string Coordinate(double value) {
  constexpr int kWidest = 9;
  const std::string exact = Shortest(value);
  const std::size_t point = exact.find('.');
  const bool finer = point != std::string::npos && exact.size() - point > 2;
  const bool plain = exact.find('e') == std::string::npos;
  return finer && plain && exact.size() <= kWidest ? exact : Fixed(value, 1, kWidest);
}

}  // namespace

std::string PlaceColumns(const Names& names, const Place& place) {
  const Receptor& receptor = names.receptors[place.receptor];
  return Left(receptor.id, 12) + Right(Coordinate(receptor.x), 10) +
         Right(Coordinate(receptor.y), 10) + "  " +
         DateText(names.blocks.StartOf(static_cast<std::int64_t>(place.block)));
}

std::string PlaceHeadings() {
  return Left("Receptor", 12) + Right("X", 10) + Right("Y", 10) + "  " + Left("First hour", 13);
}

void ReportReceptorFile(const Case& the_case, const Receptors& receptors, ListFile& list) {
  list.Line("FILES");
  list.Line("  " + Left("Receptors", 15) + the_case.receptor_file);
  list.Line("  " + Left("", 15) + Counted(receptors.bytes, "byte") + ", " +
            Counted(receptors.lines, "line") + ", " + Counted(receptors.list.size(), "receptor"));
}

void ReportGroupFile(const SourceGroup& group, const GroupSums& sums, std::size_t receptors,
                     ListFile& list) {
  list.Line("  " + Left(group.name, 15) + group.file);
  list.Line("  " + Left("", 15) + Counted(sums.bytes, "byte") + ", " + Counted(sums.lines, "line") +
            ", " + Counted(sums.hours, "hour") + " (" + DateText(sums.first) + " to " +
            DateText(sums.last) + "), " + Counted(receptors, "receptor"));
}

void ReportAverages(const Case& the_case, const Blocks& blocks, ListFile& list) {
  list.Line();
  list.Line("AVERAGES");
  list.Line("  " + Averaged(blocks) + (blocks.annual ? " (annual)" : ""));
  if (blocks.unused > 0) {
    list.Line("  The last " + Hours(blocks.unused) + " of the run fill no averaging period and " +
              (blocks.unused == 1 ? "is" : "are") + " not used.");
  }
  if (the_case.background > 0) {
    list.Line("  The background of " + Shortest(the_case.background) +
              " ug/m**3 is part of every value of " + the_case.groups.front().name + " below.");
  }
  list.Line();
}

void ReportMaxima(const Names& names, const Judgement& judgement, ListFile& list) {
  list.Line("HIGHEST AVERAGES (ug/m**3)");
  list.Line(
      "  1st: the largest of all receptors' highest values; 2nd: the largest of their "
      "second-highest values");
  list.Line("  " + Left("Group", 15) + Left("Rank", 10) + Right("Value", 12) + "  " +
            PlaceHeadings());
  for (std::size_t i = 0; i < judgement.maxima.size(); ++i) {
    const std::string& name = names.the_case.groups[i].name;
    const Maxima& maxima = judgement.maxima[i];
    list.Line(MaximumLine(names, name, "1st", maxima.highest));
    if (maxima.second) list.Line(MaximumLine(names, "", "2nd", *maxima.second));
  }
  list.Line();
}

void ReportCounts(const Names& names, const Judgement& judgement, ListFile& list) {
  const Case& the_case = names.the_case;
  list.Line("JUDGEMENT");
  list.Line(Fact("Averages judged", Grouped(judgement.judged)));
  if (!judgement.left_out.empty()) {
    list.Line(
        Fact("Left out as rank 1", Grouped(judgement.left_out.size()) +
                                       " (the highest average of every receptor, listed below)"));
  }
  list.Line(Fact("Exceedances", Grouped(judgement.exceedances) + " (" +
                                    the_case.groups.front().name + " above " +
                                    Shortest(the_case.standard) + " ug/m**3)"));
  list.Line(Fact("Receptors that exceed",
                 Grouped(judgement.receptors) + " of " + Grouped(names.receptors.size())));
  list.Line(Fact("Significant exceedances", Grouped(judgement.significant) + " (" +
                                                the_case.groups[1].name + " contributes " +
                                                Shortest(the_case.sil) + " ug/m**3 or more)"));
  list.Line();
}

void ReportLeftOut(const Names& names, const Judgement& judgement, ListFile& list) {
  if (judgement.left_out.empty()) return;
  list.Line("RANK 1 AVERAGES LEFT OUT (ug/m**3)");
  list.Line("  " + PlaceHeadings() + Right("Value", 12));
  for (const Place& place : judgement.left_out) {
    list.Line("  " + PlaceColumns(names, place) + Right(Fixed(place.value, 4), 12));
  }
  list.Line();
}

void ReportWarnings(const Names& names, const Averages& averages, const Judgement& judgement,
                    ListFile& list) {
  const Blocks& blocks = names.blocks;
  const bool short_year = blocks.annual && blocks.hours < HoursOfYearFrom(blocks.start);
  const bool nothing_left = judgement.judged == 0;
  list.Line("WARNINGS");
  if (short_year) {
    list.Line("  The annual average covers " + Hours(blocks.hours) +
              ", which is less than a year.");
  }
  if (nothing_left) {
    list.Line("  Every receptor has one average only, and rank 1 is excluded: nothing was judged.");
  }
  if (judgement.misfit.count > 0) ReportMisfit(names, averages, judgement.misfit, list);
  if (!short_year && !nothing_left && judgement.misfit.count == 0) list.Line("  None.");
  list.Line();
}

}  // namespace korventally::engine
