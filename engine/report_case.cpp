#include "engine/report_case.h"

#include <chrono>
#include <string>

#include "engine/columns.h"
#include "engine/text.h"
#include "engine/version.h"

namespace korventally::engine {

namespace {

std::string NowText() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto minutes = std::chrono::floor<std::chrono::minutes>(now).count();
  const std::string hour = DateText(minutes / 60);
  const std::string minute = std::to_string(100 + minutes % 60).substr(1);
  return hour + ":" + minute + " UTC";
}

std::string Concentration(double value) { return Shortest(value) + " ug/m**3"; }

}  // namespace

void ReportTitle(ListFile& list) {
  list.Line(std::string(kTitle) + ", VERSION " + std::string(kVersion));
  list.Line(
      "Source contributions against the standard or increment and the significant impact level");
  list.Line("Run on " + NowText());
  list.Line();
}

void ReportCase(const Case& the_case, ListFile& list) {
  list.Line("CASE");
  list.Line(Fact("Species", the_case.species));
  list.Line(Fact("Start (year-month-day hour)", DateText(the_case.start)));
  list.Line(Fact("Run length", Counted(static_cast<std::uint64_t>(the_case.run_hours), "hour")));
  list.Line(Fact("Averaging period",
                 Counted(static_cast<std::uint64_t>(the_case.averaging_hours), "hour")));
  list.Line(Fact("Standard or increment", Concentration(the_case.standard)));
  list.Line(Fact("Significant impact level", Concentration(the_case.sil)));
  list.Line(Fact("Background, first group only", Concentration(the_case.background)));
  list.Line(Fact("Rank 1 values", the_case.exclude_rank1 ? "excluded" : "included"));
  list.Line(Fact("Receptor file format",
                 the_case.receptor_format == 1 ? "1 (X, Y, ID)" : "2 (rank, value, X, Y, ID)"));
  list.Line(Fact("Source groups", std::to_string(the_case.groups.size())));
  list.Line();
}

}  // namespace korventally::engine
