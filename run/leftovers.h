#pragma once

#include <string>

namespace korventally {

/// Deletes a file that a run left in a working directory out of reach, as soon as that is back:
/// looks now and then, for as long as a window is open. Leaves it alone when another run has it.
void deleteWhenBack(const std::string& workDir, const std::string& path);

/// A new run has the file: it is no leftover any more.
void forgetLeftover(const std::string& path);

}  // namespace korventally
