#include "limits/limits.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "case/basModule.h"
#include "limits/species.h"

namespace korventally {
namespace {

/// The species of that name; NOX for a name that the table does not have.
const Species& speciesNamed(std::string_view name) {
  const auto found = std::find_if(kAllSpecies.begin(), kAllSpecies.end(),
                                  [&](const Species* species) { return species->name == name; });
  return found == kAllSpecies.end() ? kNox : **found;
}

const Limits& limitsFor(const AnalysisCase& theCase) {
  const Species& species = speciesNamed(theCase.Species);
  const Limits* limits = species.limitsFor(periodOf(theCase.AveragingHours));
  return limits == nullptr ? species.annual : *limits;
}

/// "91" and "91.0" are one limit.
bool sameLimit(const std::string& one, const std::string& other) {
  const auto number = [](const std::string& text) -> std::optional<double> {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
  };
  return one == other || (number(one) && number(one) == number(other));
}

}  // namespace

const AveragingPeriod& periodOf(std::string_view hours) {
  if (hours == kThreeHours.hours) return kThreeHours;
  return hours == kDay.hours ? kDay : kAnnual;
}

const char* annualHours(std::string_view year) {
  unsigned number = 0;
  std::from_chars(year.data(), year.data() + year.size(), number);
  return number % 4 == 0 ? kHoursOfLeapYear : kAnnual.hours;
}

void DeriveLimits(AnalysisCase& theCase) {
  const Limits& limits = limitsFor(theCase);
  const bool classI = theCase.AreaClass == kClassI;
  if (theCase.Standard == kNaaqs) theCase.StandardLimit = limits.naaqs;
  theCase.SilLimit = classI ? limits.silClassI : limits.silClassII;
  if (theCase.Standard == kPsd) {
    theCase.StandardLimit = classI ? limits.incrementClassI : limits.incrementClassII;
  }
}

bool recogniseLimits(AnalysisCase& theCase) {
  AnalysisCase tried = theCase;
  for (const char* area : {kClassI, kClassII}) {
    for (const char* standard : {kNaaqs, kPsd}) {
      tried.AreaClass = theCase.AreaClass = area;
      tried.Standard = theCase.Standard = standard;
      DeriveLimits(tried);
      if (sameLimit(tried.StandardLimit, theCase.StandardLimit) &&
          sameLimit(tried.SilLimit, theCase.SilLimit)) {
        return true;
      }
    }
  }
  theCase.AreaClass.clear();
  theCase.Standard.clear();
  return false;
}

}  // namespace korventally
