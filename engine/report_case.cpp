#include "engine/report_case.h"

#include <chrono>
#include <cstdint>
#include <string>

#include "engine/calendar.h"
#include "engine/columns.h"
#include "engine/control_file.h"
#include "engine/list_file.h"
#include "engine/text.h"
#include "engine/version.h"

namespace korventally::engine {
namespace {

std::string nowText() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto minutes = std::chrono::floor<std::chrono::minutes>(now).count();
  const std::string hour = dateText(minutes / 60);
  const std::string minute = std::to_string(100 + minutes % 60).substr(1);
  return hour + ":" + minute + " UTC";
}

std::string concentration(double value) { return shortest(value) + " ug/m**3"; }

}  // namespace

void reportTitle(ListFile& list) {
  list.line(std::string(kTitle) + ", VERSION " + std::string(kVersion));
  list.line(
      "Source contributions against the standard or increment and the significant impact level");
  list.line("Run on " + nowText());
  list.line();
}

void reportCase(const Case& theCase, ListFile& list) {
  list.line("CASE");
  list.line(fact("Species", theCase.species));
  list.line(fact("Start (year-month-day hour)", dateText(theCase.start, theCase.startCount)));
  list.line(fact("Run length", counted(static_cast<std::uint64_t>(theCase.runHours), "hour")));
  list.line(fact("Averaging period",
                 counted(static_cast<std::uint64_t>(theCase.averagingHours), "hour")));
  list.line(fact("Standard or increment", concentration(theCase.standard)));
  list.line(fact("Significant impact level", concentration(theCase.sil)));
  list.line(fact("Background, first group only", concentration(theCase.background)));
  list.line(fact("Rank 1 values", theCase.excludeRank1 ? "excluded" : "included"));
  list.line(fact("Receptor file format",
                 theCase.receptorFormat == 1 ? "1 (X, Y, ID)" : "2 (rank, value, X, Y, ID)"));
  list.line(fact("Source groups", std::to_string(theCase.groups.size())));
  list.line();
}

}  // namespace korventally::engine
