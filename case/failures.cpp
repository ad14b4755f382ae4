#include "case/failures.h"

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>

#include "case/ModUtilities.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/later.h"
#include "platform/result.h"

namespace korventally {
namespace {

constexpr std::uint32_t kPatience = 1500;
constexpr std::int16_t kPause = 50;

bool isWorthARetry(const Error& error) {
  return error.kind == ErrorKind::kBusy || error.kind == ErrorKind::kOutOfReach;
}

}  // namespace

std::string reasonOf(const Error& error) {
  if (error.code == 0) return error.text;
  return error.text + " (" + std::to_string(error.code) + ")";
}

Status retryWhileBusy(const std::function<Status()>& operation, const std::stop_token& stop) {
  const std::uint32_t start = tickCount();
  Status status = operation();
  while (!status && isWorthARetry(status.error()) && tickCount() - start < kPatience) {
    WaitMilliseconds(kPause, stop);
    // Nobody wants the operation any more: it must not happen behind a closed window. And no time
    // passes between two tries when there is none left.
    if (stop.stop_requested() || timeIsUp()) break;
    status = operation();
  }
  return status;
}

Status removeOwnFile(const std::string& path, const std::stop_token& stop) {
  Status status = retryWhileBusy([&] { return deleteFile(path); }, stop);
  const bool gone = !status && status.error().kind == ErrorKind::kNotFound && !fileExists(path);
  if (gone) return {};
  return status;
}

Status nothingAt(const std::string& path) {
  const auto left = openForReading(path);
  // One that was deleted can stand there until everybody has closed it.
  if (left) return Error{ErrorKind::kBusy, 0, "A file of this name is still there.", path};
  if (left.error().kind == ErrorKind::kNotFound) return {};
  return left.error();
}

void showFailure(Window* owner, const std::string& what, const Error& error,
                 const std::string& advice) {
  if (timeIsUp()) return;
  messageBox(owner, what + "\n" + error.path + "\n\n" + reasonOf(error) + "\n\n" + advice,
             kErrorTitle);
}

}  // namespace korventally
