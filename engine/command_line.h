// The command line: one argument, the control file.
#pragma once

#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

/// Runs the engine on arguments[1] and returns the exit code; a fault also goes to standard error.
int runCommandLine(const std::vector<NativePath>& arguments);

}  // namespace korventally::engine
