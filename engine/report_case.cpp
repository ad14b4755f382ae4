#include "engine/report_case.h"

#include <cstdint>
#include <string>

#include "engine/calendar.h"
#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/list_file.h"
#include "engine/text.h"
#include "engine/version.h"
#include "engine/wall_time.h"

namespace korventally::engine {
namespace {

std::string concentration(const std::string& given) { return given + " ug/m**3"; }

}  // namespace

void reportTitle(ListFile& list) {
  list.line(std::string(kTitle) + ", VERSION " + std::string(kVersion));
  list.line(
      "Source contributions against the standard or increment and the significant impact level");
  list.line("Run on " + localTimeText(secondsNow()));
  list.line();
}

void reportCase(const Case& theCase, const std::string& controlFile, ListFile& list) {
  list.line("CASE");
  list.line(fact("Control file", controlFile));
  list.line(fact("List file", theCase.listFile));
  list.line(fact("Species", theCase.species));
  list.line(fact("Start (year-month-day hour)", dateText(theCase.start, theCase.startCount)));
  list.line(fact("Run length", counted(static_cast<std::uint64_t>(theCase.runHours), "hour")));
  list.line(fact("Averaging period",
                 counted(static_cast<std::uint64_t>(theCase.averagingHours), "hour")));
  list.line(fact("Standard or increment", concentration(theCase.standardText)));
  list.line(fact("Significant impact level", concentration(theCase.silText)));
  list.line(fact("Background, first group only", concentration(theCase.backgroundText)));
  list.line(fact("Rank 1 values", theCase.excludeRank1 ? "excluded" : "included"));
  list.line(fact("Receptor file format",
                 theCase.receptorFormat == 1 ? "1 (X, Y, ID)" : "2 (rank, value, X, Y, ID)"));
  list.line(fact("Source groups", std::to_string(theCase.groups.size())));
  list.line();
}

}  // namespace korventally::engine
