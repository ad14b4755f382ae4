#pragma once

#include <functional>
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
  /// A run that is left half-way, by an exception, is abandoned.
  ~EngineRun();
  EngineRun(const EngineRun&) = delete;
  EngineRun& operator=(const EngineRun&) = delete;

  /// Removes what an earlier run left and writes the control file and the batch file. False when
  /// that was not possible; then the engine must not start.
  bool prepare();
  /// Starts the batch file. False when the command interpreter could not be started.
  bool start();
  /// Waits, with the running animation, for the verdict in the list file. None when the user ended
  /// the run, or it was abandoned.
  std::optional<Verdict> waitForVerdict();
  /// Whether the engine has started and its verdict is still to come.
  bool awaitsVerdict() const { return processes_ != nullptr && !over_; }
  /// Ends the run: deletes the control file and the batch file, unless debug mode keeps them.
  void finish();
  /// Ends the engine with every process that it started and deletes the run's own files, at once
  /// and without a word.
  void abandon();

 private:
  /// Paths as the run found them: the case may change before the run has unwound.
  struct OwnFile {
    std::string path;
    bool written = false;
  };

  bool checkEngine();
  bool checkCodePage();
  bool removeOldBatchFile();
  bool removeOldListFile();
  bool writeControlFile();
  bool writeBatchFile();
  bool write(OwnFile& file, const std::string& what, const std::function<Status()>& operation);
  bool wait(int milliseconds);
  bool awaitListFile();
  bool worthWaitingAfter(const Result<std::optional<Verdict>>& read, bool processesGone);
  bool processesGone() const { return !processes_->running(); }
  bool keepWaiting(const std::string& what, const std::string& reason = {});
  bool fail(const std::string& what, const Error& error, const std::string& advice);

  const AnalysisCase& case_;
  const std::string listFile_;
  const bool keepFiles_;
  OwnFile controlFile_;
  OwnFile batchFile_;
  Window& window_;
  Label& lblRunning_;
  std::unique_ptr<BatchRun> processes_;
  Patience patience_{0};
  bool over_ = false;
  bool abandoned_ = false;
  const std::function<bool()> interrupted_ = [this] { return abandoned_; };
};

}  // namespace korventally
