#include "limits/limits.h"

#include <algorithm>
#include <string_view>

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

/// Everything but 3 and 24 hours is annual: 8760 hours, 8784 in a leap year.
const AveragingPeriod& periodOf(std::string_view hours) {
  if (hours == kThreeHours.hours) return kThreeHours;
  return hours == kDay.hours ? kDay : kAnnual;
}

const Limits& limitsFor(const AnalysisCase& theCase) {
  const Species& species = speciesNamed(theCase.Species);
  const Limits* limits = species.limitsFor(periodOf(theCase.AveragingHours));
  return limits == nullptr ? species.annual : *limits;
}

}  // namespace

void DeriveLimits(AnalysisCase& theCase) {
  const Limits& limits = limitsFor(theCase);
  const bool classI = theCase.AreaClass == kClassI;
  if (theCase.Standard == kNaaqs) theCase.StandardLimit = limits.naaqs;
  theCase.SilLimit = classI ? limits.silClassI : limits.silClassII;
  if (theCase.Standard == kPsd) {
    theCase.StandardLimit = classI ? limits.incrementClassI : limits.incrementClassII;
  }
}

}  // namespace korventally
