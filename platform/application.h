#pragma once

namespace korventally {

/// Runs `body`, a program of windows, with all that has to be set up before its first window and
/// tidied up after its last. Nothing may be loaded, nor a thread started, before this is called.
/// Returns the exit code of `body`, or 1 when it ended by an exception, which the user has been
/// told of.
int runApplication(int (*body)());

}  // namespace korventally
