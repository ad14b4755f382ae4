#include "limits/limits.h"

#include <string_view>

namespace korventally {
namespace {

/// The thresholds of one species and averaging period, ug/m**3. They are texts, because they reach
/// the engine exactly as the regulation is quoted here.
struct Limits {
  const char* naaqs;
  const char* incrementClassI;
  const char* incrementClassII;
  const char* silClassI;
  const char* silClassII;
};

constexpr Limits kSo2ThreeHours{"1300.0", "25.0", "512.0", "1.0", "25.0"};
constexpr Limits kSo2Day{"365.0", "5.0", "91.0", "0.2", "5.0"};
constexpr Limits kSo2Annual{"80.0", "2.0", "20.0", "0.1", "1.0"};
constexpr Limits kPm10Day{"150.0", "8.0", "30.0", "0.3", "5.0"};
constexpr Limits kPm10Annual{"50.0", "4.0", "17.0", "0.2", "1.0"};
constexpr Limits kNoxAnnual{"100.0", "2.5", "25.0", "0.1", "1.0"};

const Limits& limitsFor(std::string_view species, std::string_view hours) {
  if (species == "SO2") {
    if (hours == "3") return kSo2ThreeHours;
    return hours == "24" ? kSo2Day : kSo2Annual;
  }
  if (species == "PM10") return hours == "24" ? kPm10Day : kPm10Annual;
  return kNoxAnnual;
}

}  // namespace

void DeriveLimits(AnalysisCase& theCase) {
  const Limits& limits = limitsFor(theCase.Species, theCase.AveragingHours);
  const bool classI = theCase.AreaClass == "Class I";
  if (theCase.Standard == "NAAQS") theCase.StandardLimit = limits.naaqs;
  theCase.SilLimit = classI ? limits.silClassI : limits.silClassII;
  if (theCase.Standard == "PSD") {
    theCase.StandardLimit = classI ? limits.incrementClassI : limits.incrementClassII;
  }
}

}  // namespace korventally
