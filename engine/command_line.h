// The command line: a control file, or a question about the program.
#pragma once

#include <vector>

#include "engine/system_files.h"

namespace korventally::engine {

/// Does what arguments[1] asks for and returns the exit code. A run says on standard output what it
/// read and how it ended; a fault also goes to standard error.
int runCommandLine(const std::vector<NativePath>& arguments);

}  // namespace korventally::engine
