#pragma once

#include <string>
#include <vector>

namespace korventally {

/// Runs `body`, a program of windows, with all that has to be set up before its first window and
/// tidied up after its last. Nothing may be loaded, nor a thread started, before this is called.
/// `body` gets what the program was started with, its own name left out: of each file dropped on
/// the program's icon the full path. Returns the exit code of `body`, or 1 when it ended by an
/// exception, which the user has been told of.
int runApplication(int (*body)(const std::vector<std::string>& arguments));

}  // namespace korventally
