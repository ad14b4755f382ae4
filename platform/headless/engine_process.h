#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/headless/desktop.h"

namespace korventally::headless {

/// An engine that runs as long as this object lives: what it has planned dies with it.
class EngineProcess : public Desktop::Engine, public std::enable_shared_from_this<EngineProcess> {
 public:
  /// `onEnd` is told when the engine ends of its own accord; it drops the engine.
  EngineProcess(std::string controlFile, std::function<void()> onEnd);

  const std::string& controlFile() const override { return controlFile_; }
  const std::string& controlBytes() const override { return controlBytes_; }
  void writeLine(std::uint32_t delay, const std::string& path, const std::string& line) override;
  void at(std::uint32_t delay, std::function<void()> action) override;
  void end(std::uint32_t delay) override;

 private:
  const std::string controlFile_;
  const std::string controlBytes_;
  const std::function<void()> onEnd_;
  const std::uint64_t start_;
};

}  // namespace korventally::headless
