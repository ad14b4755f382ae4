#pragma once

#include <string>
#include <vector>

namespace korventally {

/// The whole program: shows the wizard until it is closed, filled from the control file that it was
/// started with, if any, then sees to what is still to be tidied up. Returns the exit code.
int runProgram(const std::vector<std::string>& controlFiles);

}  // namespace korventally
