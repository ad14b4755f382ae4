#pragma once

#include "case/basModule.h"

namespace korventally {

/// Sets the two thresholds that a case is judged against, in ug/m**3, from its species, averaging
/// period, area class and standard:
/// - `StandardLimit`, the NAAQS concentration standard or the PSD increment;
/// - `SilLimit`, the significant impact level.
/// Whatever the two fields held before is overwritten, but `StandardLimit` stays when the case's
/// standard is neither "NAAQS" nor "PSD".
void DeriveLimits(AnalysisCase& theCase);

}  // namespace korventally
