#include "engine/page/summary.h"

#include <cstddef>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/exceedances.h"
#include "engine/page/html.h"
#include "engine/page/results.h"
#include "engine/report_rows.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

std::string micro(const std::string& number) { return number + " ug/m**3"; }

std::string inWords(const PlaceRow& row) {
  return "receptor " + row.receptor + " (X " + row.x + ", Y " + row.y + "), first hour " + row.hour;
}

std::string whatExceeds(const Results& results) {
  const Case& theCase = results.names.theCase;
  const Exceedances& exceedances = results.judgement.exceedances;
  const std::string averages = counted(results.judgement.judged, "average") + " judged";
  const std::string& all = theCase.groups.front().name;
  if (exceedances.count == 0) {
    return "None of the " + averages + " exceeds: " + all + " is nowhere above " +
           micro(theCase.standardText) + ".";
  }
  return all + " is above " + micro(theCase.standardText) + " in " + grouped(exceedances.count) +
         " of " + averages + ", at " + grouped(exceedances.receptors()) + " of " +
         counted(results.names.receptors.size(), "receptor") + ".";
}

std::string whatTheFacilityDoes(const Results& results) {
  const Case& theCase = results.names.theCase;
  const Exceedances& exceedances = results.judgement.exceedances;
  const AtReceptor* most = exceedances.mostContributed();
  if (most == nullptr) return {};
  const Place& place = most->contribution;
  const std::string& facility = theCase.groups[1].name;
  const double total = results.averages.total(0, place.block, place.receptor);
  return " To " + (exceedances.significant == 0 ? "none" : grouped(exceedances.significant)) +
         " of these " + facility + " contributes the significant impact level of " +
         micro(theCase.silText) + " or more. Its largest contribution to an exceedance is " +
         micro(groupFigure(results.names, 1, place.value)) + ", at " +
         inWords(placeRow(results.names, place)) + ", of a total of " +
         micro(groupFigure(results.names, 0, total)) + ".";
}

std::string whatWasLeftOut(const Results& results) {
  const std::size_t count = results.judgement.leftOut.size();
  if (count == 0) return " No average was left out.";
  const bool one = results.judgement.years.size() == 1;
  return " Left out as rank 1: " + counted(count, "average") + ", the highest of every receptor" +
         (one ? "." : " in each year of the run.");
}

std::string warningsOf(const Results& results) {
  if (results.warnings.empty()) return element("p class=\"fine\"", "No warnings.");
  std::string items;
  for (const std::string& warning : results.warnings) items += element("li", sentence(warning));
  return element("section class=\"warnings\"",
                 element("h2", counted(results.warnings.size(), "warning")) + element("ul", items));
}

std::string list(const char* title, const std::vector<Fact>& facts) {
  std::string items;
  for (const Fact& fact : facts) {
    if (fact.value.empty()) continue;
    items +=
        element("div", element("dt", sentence(fact.label)) + element("dd", sentence(fact.value)));
  }
  return element("section", element("h2", title) + element("dl", items)) + "\n";
}

}  // namespace

std::string headline(const Results& results) {
  const Exceedances& exceedances = results.judgement.exceedances;
  if (exceedances.count == 0) return "No exceedance";
  if (exceedances.significant > 0)
    return counted(exceedances.significant, "significant exceedance");
  return counted(exceedances.count, "exceedance") +
         (exceedances.count == 1 ? ", not significant" : ", none significant");
}

std::string conclusion(const Results& results) {
  return whatExceeds(results) + whatTheFacilityDoes(results) + whatWasLeftOut(results);
}

std::string summaryOf(const Results& results) {
  const Exceedances& exceedances = results.judgement.exceedances;
  const char* const kind = exceedances.significant > 0 ? "significant"
                           : exceedances.count > 0     ? "exceeding"
                                                       : "clear";
  return element("section class=\"verdict " + std::string(kind) + "\"",
                 element("h1", headline(results)) + element("p", sentence(conclusion(results)))) +
         "\n" + warningsOf(results) + "\n";
}

std::string factsOf(const Results& results) {
  std::string averages;
  for (const std::string& line : results.ofAverages) averages += element("li", sentence(line));
  return list("Judgement", results.ofJudgement) + list("Case", results.ofCase) +
         element("section", element("h2", "Averages") + element("ul", averages)) + "\n";
}

}  // namespace korventally::engine
