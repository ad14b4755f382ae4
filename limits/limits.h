#pragma once

#include "case/basModule.h"

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

}  // namespace korventally
