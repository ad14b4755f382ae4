#include "platform/headless/engine_process.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "platform/headless/desktop.h"
#include "platform/headless/world.h"

namespace korventally::headless {
namespace {

Desktop& desktop() { return Desktop::current(); }

}  // namespace

EngineProcess::EngineProcess(std::string controlFile, std::function<void()> onEnd)
    : controlFile_(std::move(controlFile)),
      controlBytes_(desktop().fileBytes(controlFile_).value_or("")),
      onEnd_(std::move(onEnd)),
      start_(desktop().world().clock.time()) {}

void EngineProcess::writeLine(std::uint32_t delay, const std::string& path,
                              const std::string& line) {
  at(delay, [path, line] { desktop().appendFile(path, line + "\r\n"); });
}

void EngineProcess::at(std::uint32_t delay, std::function<void()> action) {
  desktop().world().clock.at(start_ + delay,
                             [alive = weak_from_this(), action = std::move(action)] {
                               if (const auto self = alive.lock()) action();
                             });
}

void EngineProcess::end(std::uint32_t delay) { at(delay, onEnd_); }

}  // namespace korventally::headless
