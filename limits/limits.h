#pragma once

#include <string_view>

#include "case/basModule.h"
#include "limits/species.h"

namespace korventally {

/// Sets the two thresholds that a case is judged against, in ug/m**3, from its species, averaging
/// period, area class and standard (species.h has the table):
/// - `StandardLimit`, the NAAQS concentration standard or the PSD increment; a standard that is
///   neither leaves it as it was;
/// - `SilLimit`, the significant impact level.
/// Any species that the table does not have counts as NOX, any class but Class I as Class II. Any
/// period but 3 and 24 hours counts as annual, and so do these two for a species without such
/// limits.
void DeriveLimits(AnalysisCase& theCase);

/// The way back: sets area class and standard to those whose limits the case has, as texts or as
/// numbers, for its species and averaging period. False when there are none; then both are empty.
bool recogniseLimits(AnalysisCase& theCase);

/// The averaging period of so many hours; as above, everything but 3 and 24 hours is annual.
const AveragingPeriod& periodOf(std::string_view hours);

/// The hours of an annual period that begins in the year, four digits. Every fourth year counts as
/// a leap year, 1900 and 2100 too.
const char* annualHours(std::string_view year);

}  // namespace korventally
