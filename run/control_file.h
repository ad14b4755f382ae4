#pragma once

#include <string>
#include <vector>

#include "case/basModule.h"
#include "platform/result.h"

namespace korventally {

/// Full path of the control file, the one input of the engine: `WorkDir` + "korventally.inp".
std::string controlFilePath(const AnalysisCase& theCase);

/// The control file's 16 + 2 * GroupCount values, just as the case holds them.
std::vector<std::string> controlFileValues(const AnalysisCase& theCase);

/// Its lines: on each, 29 blanks and a colon, then one value.
std::vector<std::string> controlFileLines(const AnalysisCase& theCase);

/// Writes the control file of `analysisCase`, replacing an old one.
Status WriteControlFile();

}  // namespace korventally
