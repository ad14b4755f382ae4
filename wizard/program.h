#pragma once

namespace korventally {

/// The whole program: shows the wizard until it is closed, then sees to what is still to be tidied
/// up. Returns the exit code.
int runProgram();

}  // namespace korventally
