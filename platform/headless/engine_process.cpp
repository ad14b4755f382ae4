#include "platform/headless/engine_process.h"

#include <utility>

#include "platform/files.h"
#include "platform/headless/world.h"

namespace korventally::headless {
namespace {

Desktop& desktop() { return Desktop::current(); }

/// Every line of a control file starts with a prefix of this length.
constexpr std::size_t kPrefix = 30;

}  // namespace

EngineProcess::EngineProcess(std::string controlFile, std::function<void()> onEnd)
    : controlFile_(std::move(controlFile)),
      controlBytes_(desktop().fileBytes(controlFile_).value_or("")),
      onEnd_(std::move(onEnd)),
      start_(desktop().world().clock.time()) {}

std::string EngineProcess::listFile() const {
  const std::string line = controlBytes_.substr(0, controlBytes_.find("\r\n"));
  return line.size() < kPrefix ? std::string() : fromAnsi(line.substr(kPrefix));
}

void EngineProcess::writeLine(std::uint32_t delay, const std::string& line) {
  at(delay, [path = listFile(), line] { desktop().appendFile(path, line + "\r\n"); });
}

void EngineProcess::at(std::uint32_t delay, std::function<void()> action) {
  desktop().world().clock.at(start_ + delay,
                             [alive = weak_from_this(), action = std::move(action)] {
                               if (const auto self = alive.lock()) action();
                             });
}

void EngineProcess::end(std::uint32_t delay) { at(delay, onEnd_); }

}  // namespace korventally::headless
