#pragma once

#include <memory>
#include <optional>
#include <string>

#include "case/basModule.h"
#include "platform/label.h"
#include "platform/process.h"
#include "platform/window.h"
#include "run/patience.h"
#include "run/verdict.h"

namespace korventally {

/// One run of the engine on the analysis case: its own files, its processes and the wait for its
/// verdict. Every failure is shown once, over the window of the run; afterwards the run's own files
/// are gone. All waits handle events, so any of them may see `abandon`.
class EngineRun {
 public:
  EngineRun(Window& window, Label& lblRunning);
  ~EngineRun();
  EngineRun(const EngineRun&) = delete;
  EngineRun& operator=(const EngineRun&) = delete;

  /// Removes what an earlier run left and writes the control file and the batch file. False when
  /// that was not possible; then the engine must not start.
  bool prepare();
  /// Starts the batch file. False when the command interpreter could not be started.
  bool start();
  bool started() const { return processes_ != nullptr; }
  /// Waits, with the running animation, for the verdict in the list file. None when the user ended
  /// the run, or it was abandoned.
  std::optional<Verdict> waitForVerdict();
  /// Deletes the control file and the batch file, unless debug mode keeps them.
  void removeOwnFiles();
  /// Ends the engine with every process that it started and deletes the run's own files, at once.
  void abandon();
  bool abandoned() const { return abandoned_; }

 private:
  bool checkEngine();
  bool checkCodePage();
  bool removeOldBatchFile();
  bool removeOldListFile();
  bool writeOwnFiles();
  bool wait(int milliseconds);
  bool awaitListFile();
  bool processesGone() const { return !processes_->running(); }
  bool keepWaiting(const std::string& what);
  Window* owner() const { return window_.isOpen() ? &window_ : nullptr; }
  bool fail(const std::string& what, const Error& error, const std::string& advice);

  const AnalysisCase& case_;
  const std::string listFile_;
  Window& window_;
  Label& lblRunning_;
  std::unique_ptr<BatchRun> processes_;
  Patience patience_{0};
  bool ownsControlFile_ = false;
  bool ownsBatchFile_ = false;
  bool abandoned_ = false;
};

}  // namespace korventally
