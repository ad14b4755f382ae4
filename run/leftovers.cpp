#include "run/leftovers.h"

#include <cstdint>
#include <string>

#include "case/basModule.h"
#include "platform/files.h"
#include "platform/later.h"
#include "platform/result.h"
#include "platform/window.h"
#include "run/folder_claim.h"

namespace korventally {
namespace {

/// A look at a server that does not answer can take seconds, in which the windows stand still.
constexpr std::uint32_t kBetweenLooks = 10000;

std::string nameOf(const std::string& path) { return "leftover " + path; }

/// Whether there is nothing more to do about the file.
bool deleteLeftover(const std::string& workDir, const std::string& path) {
  const auto claim = claimFolder(workDir);
  if (!claim) return claim.error().kind == ErrorKind::kBusy;
  // The wizard may have been filled from it meanwhile, which made it the user's.
  if (sameFile(path, basModule::analysisCase.openedFrom)) return true;
  const Status deleted = deleteFile(path);
  return deleted || deleted.error().kind == ErrorKind::kNotFound;
}

}  // namespace

void deleteWhenBack(const std::string& workDir, const std::string& path) {
  runLater(nameOf(path), kBetweenLooks, [workDir, path] {
    if (deleteLeftover(workDir, path) || timeIsUp() || Window::openWindows().empty()) return;
    deleteWhenBack(workDir, path);
  });
}

void forgetLeftover(const std::string& path) {
  runLater(nameOf(path), 0, [] {});
}

}  // namespace korventally
