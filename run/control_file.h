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

/// Reads such a file back: the case that writes the same lines, its area class and standard as the
/// limits say, or empty where they are not the table's. A list file without a folder is one of the
/// control file's own. The error of any other file says why in words of the user's, with the number
/// of the line where there is one; a value too long for its box in the wizard is such a fault.
Result<AnalysisCase> readControlFile(const std::string& path);

/// Writes the control file of `analysisCase`, replacing an old one.
Status WriteControlFile();

}  // namespace korventally
