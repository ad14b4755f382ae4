#pragma once

#include <string>
#include <vector>

#include "case/basModule.h"
#include "platform/result.h"

namespace korventally {

/// Full path of the control file, the one input of the engine: `WorkDir` + "korventally.inp".
std::string controlFilePath(const AnalysisCase& theCase);

/// The control file's 16 + 2 * GroupCount lines: on each, 29 blanks and a colon, then one value of
/// the case just as the case holds it.
std::vector<std::string> controlFileLines(const AnalysisCase& theCase);

/// Writes the control file of `analysisCase`, replacing an old one.
Status WriteControlFile();

}  // namespace korventally
