#include "run/engine_run.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "case/ModUtilities.h"
#include "case/basModule.h"
#include "case/failures.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/label.h"
#include "platform/process.h"
#include "platform/result.h"
#include "run/batch_file.h"
#include "run/control_file.h"
#include "run/leftovers.h"
#include "run/verdict.h"

namespace korventally {
namespace {

constexpr std::int16_t kBeforeFirstLook = 1000;
constexpr std::int16_t kBeforeEachScan = 50;
constexpr std::int16_t kBeforeVerdictShows = 50;
constexpr std::int16_t kListFilePause = 50;

constexpr const char* kLeftoverAdvice =
    "Please delete the file when no other program uses it any more.";
constexpr const char* kComesBackAdvice =
    "It is deleted when the working directory can be reached again, as long as this window or the "
    "wizard is open. Otherwise please delete it yourself.";

}  // namespace

EngineRun::EngineRun(Window& window, Label& lblRunning)
    : case_(basModule::analysisCase),
      workDir_(case_.WorkDir),
      listFile_(case_.WorkDir + case_.ListFile),
      controlFile_(controlFilePath(case_)),
      batchFile_(batchFilePath(case_)),
      keepFiles_(case_.DebugMode),
      window_(window),
      lblRunning_(lblRunning),
      patience_(tickCount()) {}

EngineRun::~EngineRun() {
  if (phase_ != Phase::kOver) abandon();
}

bool EngineRun::start() {
  const WindowStyle style = case_.DebugMode ? WindowStyle::kNormalFocus : WindowStyle::kHidden;
  auto processes = startBatchFile(batchFile_, style, StartFolder::kCurrent);
  if (!processes) {
    return fail("The command interpreter could not be started:", processes.error(),
                "Please ask the administrator of this computer.");
  }
  processes_ = std::move(processes.value());
  patience_ = Patience(tickCount());
  phase_ = Phase::kAwaitingVerdict;
  return true;
}

std::optional<Verdict> EngineRun::waitForVerdict() {
  const BelowNormalPriority priority;
  std::optional<Verdict> verdict;
  wait(kBeforeFirstLook);
  while (!verdict && wait(kBeforeEachScan) && awaitListFile()) {
    // Asked before the reading: what the last process wrote is then sure to be read.
    const bool gone = processesGone();
    const Reading read = readVerdict(listFile_, stop_.get_token());
    if (read) verdict = read.value();
    if (!verdict && !keepWaitingOrAsk(doubtAfter(read, gone))) break;
    AnimateRunning(lblRunning_, stop_.get_token());
  }
  wait(kBeforeVerdictShows);
  return abandoned() ? std::nullopt : verdict;
}

/// False when there is nothing left to wait for.
bool EngineRun::awaitListFile() {
  while (true) {
    const bool gone = processesGone();
    if (fileExists(listFile_)) return true;
    if (!keepWaitingOrAsk(doubtWithoutListFile(gone)) || !wait(kListFilePause)) return false;
  }
}

/// Why a wait for the list file may be in vain; empty while there is hope. That no file is seen
/// says something about the engine only where it is certain that there is none: the directory may
/// be on a network drive that was cut off and comes back.
std::string EngineRun::doubtWithoutListFile(bool gone) const {
  const std::uint32_t now = tickCount();
  const bool overdue = patience_.listFileOverdue(now);
  if (!overdue && !(gone && patience_.verdictOverdue(now))) return {};
  const Status missing = nothingAt(listFile_);
  if (!missing && !overdue) return {};
  if (!missing && missing.error().kind == ErrorKind::kOutOfReach) {
    return "The list file is out of reach:\n" + listFile_ + "\n\n" + reasonOf(missing.error());
  }
  return (gone ? "The engine has ended without writing its list file:\n"
               : "The engine has not written its list file yet:\n") +
         listFile_;
}

/// The same after a reading that gave no verdict. A file that could not be read has not been
/// searched, so it says nothing about the engine; others may hold it for a while.
std::string EngineRun::doubtAfter(const Reading& read, bool gone) {
  const std::uint32_t now = tickCount();
  if (!read) {
    if (!patience_.listFileOverdue(now)) return {};
    return "The list file cannot be read:\n" + listFile_ + "\n\n" + reasonOf(read.error());
  }
  patience_.listFileWasRead(now);
  if (!gone || !patience_.verdictOverdue(now)) return {};
  return "The engine has ended without a verdict in its list file:\n" + listFile_;
}

/// Leaves it to the user, where there is a doubt, whether the run goes on.
bool EngineRun::keepWaitingOrAsk(const std::string& doubt) {
  if (abandoned()) return false;
  if (doubt.empty()) return true;
  const Answer answer = messageBox(
      &window_,
      doubt + "\n\nKeep waiting for it? \"Yes\" waits another 30 seconds, \"No\" ends the run.",
      kWarningTitle, Buttons::kYesNo);
  if (abandoned()) return false;
  patience_.extend(tickCount());
  if (answer == Answer::kNo) abandon();
  return answer == Answer::kYes;
}

void EngineRun::finish() {
  phase_ = Phase::kOver;
  releaseBatchFile();
  for (const std::string& path : std::exchange(ownFiles_, {})) {
    const Status removed = removeOwnFile(path);
    if (!removed) leaveBehind(path, removed.error());
  }
  claim_.reset();
}

void EngineRun::leaveBehind(const std::string& path, const Error& error) {
  const bool mayComeBack = error.kind == ErrorKind::kOutOfReach;
  if (mayComeBack) deleteWhenBack(workDir_, path);
  showFailure(&window_, "A file of the run could not be deleted:", error,
              mayComeBack ? kComesBackAdvice : kLeftoverAdvice);
}

/// An engine may live on after its verdict, and its interpreter with it. That would go on reading
/// in the batch file of a later run, or hold this one open, so that it goes only when the engine
/// ends, and what the later run has written under its name goes with it.
void EngineRun::releaseBatchFile() {
  if (processes_ && !keepFiles_) processes_->endInterpreter();
}

void EngineRun::abandon() {
  stop_.request_stop();
  if (processes_) processes_->terminate();
  // What cannot be deleted at once is tried again, and reported, when the run's handler unwinds.
  std::erase_if(ownFiles_, [](const std::string& path) { return deleteFile(path).ok(); });
  if (ownFiles_.empty()) claim_.reset();
}

/// Waits while events are handled; false when the run was abandoned meanwhile.
bool EngineRun::wait(std::int16_t milliseconds) {
  WaitMilliseconds(milliseconds, stop_.get_token());
  return !abandoned();
}

bool EngineRun::fail(const std::string& what, const Error& error, const std::string& advice) {
  if (!abandoned()) showFailure(&window_, what, error, advice);
  return false;
}

}  // namespace korventally
