#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "case/failures.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/result.h"
#include "run/batch_file.h"
#include "run/control_file.h"
#include "run/engine_run.h"
#include "run/folder_claim.h"
#include "run/leftovers.h"

namespace korventally {
namespace {

constexpr std::int16_t kBeforeBatchFile = 50;

constexpr const char* kFolderAdvice =
    "Please check that the working directory can be written to and that no other program has the "
    "file open, then press RUN again.";

}  // namespace

bool EngineRun::prepare() {
  return checkEngine() && checkCodePage() && claimWorkDir() && removeOldBatchFile() &&
         removeOldListFile() && writeControlFile() && wait(kBeforeBatchFile) && writeBatchFile();
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

/// Before anything is deleted or written: what is there may be another window's.
bool EngineRun::claimWorkDir() {
  const Status claimed = retryWhileBusy(
      [this]() -> Status {
        auto claim = claimFolder(case_.WorkDir);
        if (!claim) return claim.error();
        claim_ = std::move(claim.value());
        return {};
      },
      stop_.get_token());
  if (claimed) forgetLeftovers();
  if (claimed || abandoned()) return !abandoned();
  const std::string holder = holderOfClaim(case_.WorkDir);
  if (claimed.error().kind == ErrorKind::kBusy && !holder.empty()) return sayWhoRuns(holder);
  return fail("The working directory could not be reserved for this run:", claimed.error(),
              kFolderAdvice);
}

void EngineRun::forgetLeftovers() const {
  for (const std::string& path : {controlFile_, batchFile_}) forgetLeftover(path);
}

bool EngineRun::sayWhoRuns(const std::string& holder) {
  messageBox(&window_,
             "Another KorvenTally window is running a case in this working directory:\n" +
                 case_.WorkDir + "\n\nIt is " + holder +
                 ".\n\nNothing of that run was touched. Please wait until it has ended, or choose "
                 "another working directory, then press RUN again.",
             kErrorTitle);
  return false;
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
  // A control file of this name that the wizard was filled from is replaced, but it is the user's.
  const bool usersOwn = sameFile(path, case_.openedFrom);
  if (!keepFiles_ && !usersOwn) ownFiles_.push_back(path);
  return !abandoned();
}

}  // namespace korventally
