#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "case/basModule.h"
#include "platform/files.h"
#include "platform/label.h"
#include "platform/process.h"
#include "platform/result.h"
#include "platform/window.h"
#include "run/patience.h"
#include "run/verdict.h"

namespace korventally {

/// One run of the engine on the analysis case: its own files (control file and batch file), its
/// processes and the wait for its verdict. Every failure is shown once, over the window of the run.
/// Whatever happens, `finish` is the last call: it deletes the run's own files, unless debug mode
/// keeps them. All waits handle events, so any of them may see `abandon`.
class EngineRun {
 public:
  EngineRun(Window& window, Label& lblRunning);
  /// A run that is left half-way, by an exception, is abandoned.
  ~EngineRun();
  EngineRun(const EngineRun&) = delete;
  EngineRun& operator=(const EngineRun&) = delete;

  /// Checks that the engine is there and can be given every name and that no other window runs a
  /// case in the working directory, deletes an old batch file and
  /// list file, and writes the control file and the batch file. False when that was not possible,
  /// or when the run was abandoned; then the engine must not start.
  bool prepare();
  /// Starts the batch file. False when the command interpreter could not be started.
  bool start();
  /// Waits, with the running animation, for the verdict in the list file. None when the user ended
  /// the run, or it was abandoned.
  std::optional<Verdict> waitForVerdict();
  /// Whether the engine has been started and the run is not finished yet.
  bool awaitsVerdict() const { return phase_ == Phase::kAwaitingVerdict; }
  /// Ends the run: deletes its own files and shows which of them could not be deleted.
  void finish();
  /// Ends the processes of the run and deletes its own files, at once and without a word; what
  /// cannot be deleted at once is left to `finish`.
  void abandon();

 private:
  enum class Phase { kPreparing, kAwaitingVerdict, kOver };
  using Reading = Result<std::optional<Verdict>>;

  bool checkEngine();
  bool checkCodePage();
  bool claimWorkDir();
  void forgetLeftovers() const;
  bool sayWhoRuns(const std::string& holder);
  bool removeOldBatchFile();
  bool removeOldListFile();
  bool writeControlFile();
  bool writeBatchFile();
  bool write(const std::string& path, const std::string& what,
             const std::function<Status()>& operation);
  bool fail(const std::string& what, const Error& error, const std::string& advice);

  bool wait(std::int16_t milliseconds);
  bool awaitListFile();
  std::string doubtWithoutListFile(bool gone) const;
  std::string doubtAfter(const Reading& read, bool gone);
  bool keepWaitingOrAsk(const std::string& doubt);
  void releaseBatchFile();
  void leaveBehind(const std::string& path, const Error& error);

  bool processesGone() const { return !processes_->running(); }
  bool abandoned() const { return stop_.stop_requested(); }

  const AnalysisCase& case_;  ///< may change before the run has unwound, unlike the paths below
  const std::string workDir_;
  const std::string listFile_;
  const std::string controlFile_;
  const std::string batchFile_;
  const bool keepFiles_;
  Window& window_;
  Label& lblRunning_;

  Phase phase_ = Phase::kPreparing;
  std::stop_source stop_;              ///< requested by `abandon`; every wait of the run ends then
  std::vector<std::string> ownFiles_;  ///< written and still to be deleted
  std::unique_ptr<HeldFile> claim_;    ///< on the working directory, as long as files are there
  std::unique_ptr<BatchRun> processes_;
  Patience patience_;
};

}  // namespace korventally
