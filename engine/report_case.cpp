#include "engine/report_case.h"

#include <cstdint>
#include <string>
#include <vector>

#include "engine/calendar.h"
#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/list_file.h"
#include "engine/text.h"
#include "engine/version.h"

namespace korventally::engine {
namespace {

std::string concentration(const std::string& given) { return given + " ug/m**3"; }

}  // namespace

void reportTitle(const std::string& runOn, ListFile& list) {
  list.line(std::string(kTitle) + ", VERSION " + std::string(kVersion));
  list.line(
      "Source contributions against the standard or increment and the significant impact level");
  list.line("Run on " + runOn);
  list.line();
}

std::vector<Fact> factsOfCase(const Case& theCase, const std::string& controlFile) {
  return {
      {"Control file", controlFile},
      {"List file", theCase.listFile},
      {"Species", theCase.species},
      {"Start (year-month-day hour)", dateText(theCase.start, theCase.startCount)},
      {"Run length", counted(static_cast<std::uint64_t>(theCase.runHours), "hour")},
      {"Averaging period", counted(static_cast<std::uint64_t>(theCase.averagingHours), "hour")},
      {"Standard or increment", concentration(theCase.standardText)},
      {"Significant impact level", concentration(theCase.silText)},
      {"Background, first group only", concentration(theCase.backgroundText)},
      {"Rank 1 values", theCase.excludeRank1 ? "excluded" : "included"},
      {"Receptor file format",
       theCase.receptorFormat == 1 ? "1 (X, Y, ID)" : "2 (rank, value, X, Y, ID)"},
      {"Source groups", std::to_string(theCase.groups.size())},
  };
}

}  // namespace korventally::engine
