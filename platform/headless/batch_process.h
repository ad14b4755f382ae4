#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/interpreter.h"

namespace korventally::headless {

class EngineProcess;

/// A command interpreter that works through a batch file, with the engine that it has started.
class BatchProcess : public std::enable_shared_from_this<BatchProcess> {
 public:
  explicit BatchProcess(std::string path) : path_(std::move(path)) {}

  /// Reads the file and runs it up to the first program that has to be waited for.
  void start();
  bool running() const { return running_; }
  bool engineRunning() const { return engine_ != nullptr; }
  void terminate();
  void endInterpreter();

 private:
  void runCommands();
  void runCommand(const std::vector<std::string>& words);
  void startEngine(const std::string& program, const std::string& controlFile);
  /// Some interpreters keep the file open for as long as a program runs that it has started.
  void holdBatchFile() const;
  void letGoOfBatchFile() const;
  /// The last program has ended.
  void goOn();

  const std::string path_;
  std::vector<Command> commands_;  ///< those still to run
  std::shared_ptr<EngineProcess> engine_;
  bool running_ = true;
  bool waiting_ = false;
};

}  // namespace korventally::headless
