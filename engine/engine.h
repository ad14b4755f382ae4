// One run of the engine, from the control file to the verdict in the list file.
#pragma once

#include <string>

#include "engine/system_files.h"

namespace korventally::engine {

/// The numbers are the exit codes of the program.
enum class Outcome {
  kCompleted = 0,   ///< the list file ends with "RUN COMPLETED"
  kFailed = 1,      ///< the list file ends with "RUN FAILED"
  kNoListFile = 2,  ///< no list file could be made, or its verdict could not be written
};

struct Result {
  Outcome outcome = Outcome::kCompleted;
  std::string sentence;  ///< what went wrong; empty for a completed run
};

/// Never throws. Not reentrant: one run at a time in a process.
Result runCase(const NativePath& controlFile) noexcept;

}  // namespace korventally::engine
