#include "run/engine_run.h"

#include "case/ModUtilities.h"
#include "case/failures.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "run/batch_file.h"
#include "run/control_file.h"

namespace korventally {
namespace {

constexpr std::int16_t kBeforeBatchFile = 50;
constexpr std::int16_t kBeforeFirstLook = 1000;
constexpr std::int16_t kBeforeEachScan = 50;
constexpr std::int16_t kBeforeVerdictShows = 50;
constexpr std::int16_t kListFilePause = 50;

constexpr const char* kFolderAdvice =
    "Please check that the working directory can be written to and that no other program has the "
    "file open, then press RUN again.";
constexpr const char* kLeftoverAdvice =
    "Please delete the file when no other program uses it any more.";

Status nothingAt(const std::string& path) {
  const auto left = openForReading(path);
  if (left) return Error{ErrorKind::kOther, 0, "A file of this name is still there.", path};
  if (left.error().kind == ErrorKind::kNotFound) return {};
  return left.error();
}

}  // namespace

EngineRun::EngineRun(Window& window, Label& lblRunning)
    : case_(basModule::analysisCase),
      listFile_(case_.WorkDir + case_.ListFile),
      window_(window),
      lblRunning_(lblRunning) {}

EngineRun::~EngineRun() = default;

bool EngineRun::prepare() {
  return checkEngine() && checkCodePage() && removeOldBatchFile() && removeOldListFile() &&
         writeOwnFiles();
}

bool EngineRun::checkEngine() {
  if (fileExists(enginePath())) return true;
  messageBox(owner(),
             "The engine could not be found:\n" + enginePath() +
                 "\n\nPlease copy korventally.exe into this folder, then press RUN again.",
             kErrorTitle);
  return false;
}

/// What the run writes is checked before the run deletes anything, so that a name which cannot be
/// written costs nothing.
bool EngineRun::checkCodePage() {
  std::vector<std::string> texts = controlFileLines(case_);
  for (std::string& line : batchFileLines(case_)) texts.push_back(std::move(line));
  for (const std::string& text : texts) {
    if (const auto bytes = toAnsi(text); !bytes) {
      messageBox(owner(),
                 "This text holds characters that the system's code page lacks:\n" +
                     trimBlanks(text) +
                     "\n\nThe engine could not read it. Please use another name for the file, "
                     "folder or group.",
                 kErrorTitle);
      return false;
    }
  }
  return true;
}

bool EngineRun::removeOldBatchFile() {
  if (!fileExists(batchFilePath(case_))) return true;
  const Status removed = removeOwnFile(batchFilePath(case_), [this] { return abandoned_; });
  return removed || fail("The batch file of an earlier run could not be deleted:", removed.error(),
                         kFolderAdvice);
}

/// A verdict may only ever be read from a file that this run's engine wrote. So nothing at all may
/// be left under the list file's name, whatever the deletion reported: no folder, no hidden file.
bool EngineRun::removeOldListFile() {
  const auto interrupted = [this] { return abandoned_; };
  Status removed;
  if (fileExists(listFile_)) removed = removeOwnFile(listFile_, interrupted);
  if (removed) removed = retryWhileBusy([this] { return nothingAt(listFile_); }, interrupted);
  return removed || fail("The list file of an earlier run could not be deleted:", removed.error(),
                         kFolderAdvice);
}

bool EngineRun::writeOwnFiles() {
  const auto interrupted = [this] { return abandoned_; };
  const Status control = retryWhileBusy([] { return WriteControlFile(); }, interrupted);
  ownsControlFile_ = control.ok();
  if (!control)
    return fail("The control file could not be written:", control.error(), kFolderAdvice);
  if (!wait(kBeforeBatchFile)) return false;
  const Status batch = retryWhileBusy(
      [this] { return writeTextFile(batchFilePath(case_), batchFileLines(case_)); }, interrupted);
  ownsBatchFile_ = batch.ok();
  if (!batch) return fail("The batch file could not be written:", batch.error(), kFolderAdvice);
  return !abandoned_;
}

bool EngineRun::start() {
  const WindowStyle style = case_.DebugMode ? WindowStyle::kNormalFocus : WindowStyle::kHidden;
  auto processes = startBatchFile(batchFilePath(case_), style);
  if (!processes) {
    return fail("The command interpreter could not be started for the batch file:",
                processes.error(), "Please ask the administrator of this computer.");
  }
  processes_ = std::move(processes.value());
  patience_ = Patience(tickCount());
  return true;
}

std::optional<Verdict> EngineRun::waitForVerdict() {
  const BelowNormalPriority priority;
  std::optional<Verdict> verdict;
  wait(kBeforeFirstLook);
  while (!verdict && wait(kBeforeEachScan) && awaitListFile()) {
    // Asked before the reading: what the last process wrote is then sure to be read.
    const bool gone = processesGone();
    verdict = readVerdict(listFile_, [this] { return abandoned_; });
    if (!verdict && !abandoned_ && patience_.exhaustedWithListFile(tickCount(), gone) &&
        !keepWaiting("The engine has ended without a verdict in its list file:")) {
      break;
    }
    AnimateRunning(lblRunning_, [this] { return abandoned_; });
  }
  wait(kBeforeVerdictShows);
  return abandoned_ ? std::nullopt : verdict;
}

/// False when there is nothing left to wait for.
bool EngineRun::awaitListFile() {
  while (true) {
    const bool gone = processesGone();
    if (fileExists(listFile_)) return true;
    if (patience_.exhaustedWithoutListFile(tickCount(), gone) &&
        !keepWaiting(gone ? "The engine has ended without writing its list file:"
                          : "The engine has not written its list file yet:")) {
      return false;
    }
    if (!wait(kListFilePause)) return false;
  }
}

bool EngineRun::keepWaiting(const std::string& what) {
  const Answer answer = messageBox(
      owner(),
      what + "\n" + listFile_ +
          "\n\nKeep waiting for it? \"Yes\" waits another 30 seconds, \"No\" ends the run.",
      kWarningTitle, Buttons::kYesNo);
  if (abandoned_) return false;
  patience_.extend(tickCount());
  if (answer == Answer::kNo) abandon();
  return answer == Answer::kYes;
}

void EngineRun::removeOwnFiles() {
  if (case_.DebugMode) return;
  const auto remove = [this](bool& owned, const std::string& path) {
    if (!owned) return;
    owned = false;
    const Status removed = removeOwnFile(path);
    if (!removed) {
      showFailure(owner(), "A file of the run could not be deleted:", removed.error(),
                  kLeftoverAdvice);
    }
  };
  remove(ownsControlFile_, controlFilePath(case_));
  remove(ownsBatchFile_, batchFilePath(case_));
}

void EngineRun::abandon() {
  abandoned_ = true;
  if (processes_) processes_->terminate();
  if (case_.DebugMode) return;
  // What cannot be deleted at once is tried again, and reported, when the run's handler unwinds.
  if (ownsControlFile_ && deleteFile(controlFilePath(case_))) ownsControlFile_ = false;
  if (ownsBatchFile_ && deleteFile(batchFilePath(case_))) ownsBatchFile_ = false;
}

/// Waits while events are handled; false when the run was abandoned meanwhile.
bool EngineRun::wait(int milliseconds) {
  WaitMilliseconds(static_cast<std::int16_t>(milliseconds), [this] { return abandoned_; });
  return !abandoned_;
}

bool EngineRun::fail(const std::string& what, const Error& error, const std::string& advice) {
  if (!abandoned_) showFailure(owner(), what, error, advice);
  return false;
}

}  // namespace korventally
