#pragma once

#include <string>
#include <vector>

#include "case/basModule.h"

namespace korventally {

/// Full path of the engine: korventally.exe in the installation directory.
std::string enginePath();

/// Full path of the batch file that starts the engine: `WorkDir` + "run_korventally.bat".
std::string batchFilePath(const AnalysisCase& theCase);

/// The batch file's lines: the quoted engine and the quoted control file; in debug mode "pause"
/// keeps the console open at the end.
std::vector<std::string> batchFileLines(const AnalysisCase& theCase,
                                        const std::string& engine = enginePath());

}  // namespace korventally
