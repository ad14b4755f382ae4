// One run of the engine, from the control file to the verdict in the list file.
#pragma once

#include <chrono>
#include <functional>
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
  std::string listFile;  ///< where the verdict stands; empty when there is none
};

/// Whoever watches a run. Both are called on the thread of the run and must not throw; none needs
/// to be there.
struct Watcher {
  std::function<void(const std::string& line)> read;  ///< a file was read: its name and size
  /// How far the file is that the run waits for, each time that it has waited so long again.
  std::function<void(const std::string& line)> reading;
  std::chrono::milliseconds interval{1000};
};

/// Never throws. Not reentrant: one run at a time in a process.
Result runCase(const NativePath& controlFile, const Watcher& watcher = {}) noexcept;

}  // namespace korventally::engine
