#include "run/engine_run.h"

#include <utility>

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
      controlFile_(controlFilePath(case_)),
      batchFile_(batchFilePath(case_)),
      keepFiles_(case_.DebugMode),
      window_(window),
      lblRunning_(lblRunning),
      patience_(tickCount()) {}

EngineRun::~EngineRun() {
  if (phase_ != Phase::kOver) abandon();
}

bool EngineRun::prepare() {
  return checkEngine() && checkCodePage() && removeOldBatchFile() && removeOldListFile() &&
         writeControlFile() && wait(kBeforeBatchFile) && writeBatchFile();
}

bool EngineRun::checkEngine() {
  if (fileExists(enginePath())) return true;
  messageBox(&window_,
             "The engine could not be found:\n" + enginePath() +
                 "\n\nPlease copy korventally.exe into this folder, then press RUN again.",
             kErrorTitle);
  return false;
}

/// What the run writes is checked before the run deletes anything, so that a name which cannot be
/// written costs nothing.
bool EngineRun::checkCodePage() {
  std::vector<std::string> texts = controlFileValues(case_);
  for (std::string& line : batchFileLines(case_)) texts.push_back(std::move(line));
  for (const std::string& text : texts) {
    if (toAnsi(text)) continue;
    messageBox(
        &window_,
        "This text contains characters that cannot be written in this system's code page:\n" +
            text +
            "\n\nThe engine could not read it. Please use another name for the file, folder "
            "or group.",
        kErrorTitle);
    return false;
  }
  return true;
}

bool EngineRun::removeOldBatchFile() {
  if (!fileExists(batchFile_)) return true;
  const Status removed = removeOwnFile(batchFile_, stop_.get_token());
  if (!removed) {
    return fail("The batch file of an earlier run could not be deleted:", removed.error(),
                kFolderAdvice);
  }
  return !abandoned();
}

/// A verdict may only ever be read from a file that this run's engine wrote. So nothing at all may
/// be left under the list file's name, whatever the deletion reported: no folder, no hidden file.
bool EngineRun::removeOldListFile() {
  Status removed;
  if (fileExists(listFile_)) removed = removeOwnFile(listFile_, stop_.get_token());
  if (removed) {
    removed = retryWhileBusy([this] { return nothingAt(listFile_); }, stop_.get_token());
  }
  if (!removed) {
    return fail("The list file of an earlier run could not be deleted:", removed.error(),
                kFolderAdvice);
  }
  return !abandoned();
}

bool EngineRun::writeControlFile() {
  return write(controlFile_,
               "The control file could not be written:", [] { return WriteControlFile(); });
}

bool EngineRun::writeBatchFile() {
  return write(batchFile_, "The batch file could not be written:", [this] {
    return writeTextFile(batchFile_, batchFileLines(case_));
  });
}

bool EngineRun::write(const std::string& path, const std::string& what,
                      const std::function<Status()>& operation) {
  const Status written = retryWhileBusy(operation, stop_.get_token());
  if (!written) return fail(what, written.error(), kFolderAdvice);
  if (!keepFiles_) ownFiles_.push_back(path);
  return !abandoned();
}

bool EngineRun::fail(const std::string& what, const Error& error, const std::string& advice) {
  if (!abandoned()) showFailure(&window_, what, error, advice);
  return false;
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

/// Why a wait for the list file may be in vain; empty while there is hope.
std::string EngineRun::doubtWithoutListFile(bool gone) const {
  const std::uint32_t now = tickCount();
  if (gone && patience_.verdictOverdue(now)) {
    return "The engine has ended without writing its list file:\n" + listFile_;
  }
  if (!gone && patience_.listFileOverdue(now)) {
    return "The engine has not written its list file yet:\n" + listFile_;
  }
  return {};
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
  for (const std::string& path : std::exchange(ownFiles_, {})) {
    const Status removed = removeOwnFile(path);
    if (removed) continue;
    showFailure(&window_, "A file of the run could not be deleted:", removed.error(),
                kLeftoverAdvice);
  }
}

void EngineRun::abandon() {
  stop_.request_stop();
  if (processes_) processes_->terminate();
  // What cannot be deleted at once is tried again, and reported, when the run's handler unwinds.
  std::erase_if(ownFiles_, [](const std::string& path) { return deleteFile(path).ok(); });
}

/// Waits while events are handled; false when the run was abandoned meanwhile.
bool EngineRun::wait(std::int16_t milliseconds) {
  WaitMilliseconds(milliseconds, stop_.get_token());
  return !abandoned();
}

}  // namespace korventally
