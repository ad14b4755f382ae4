#include "platform/headless/batch_process.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "platform/headless/engine_process.h"
#include "platform/headless/interpreter.h"
#include "platform/headless/path.h"
#include "platform/headless/world.h"

namespace korventally::headless {
namespace {

constexpr std::uint32_t kForEver = 0xFFFFFFFF;

Desktop::World& world() { return Desktop::current().world(); }

}  // namespace

void BatchProcess::start() {
  if (!world().files.reaches(path_)) {
    // The interpreter complains in its own window and ends.
  } else if (const auto bytes = Desktop::current().fileBytes(path_)) {
    const auto commands = readBatchFile(fromAnsi(*bytes), {});
    if (!commands) Desktop::onFailure("the interpreter cannot make sense of: " + *bytes);
    commands_ = commands.value_or(std::vector<Command>());
  } else {
    Desktop::onFailure("a batch file was started that is not there: " + path_);
  }
  runCommands();
}

void BatchProcess::runCommands() {
  while (running_ && !waiting_ && !commands_.empty()) {
    const Command command = commands_.front();
    commands_.erase(commands_.begin());
    if (command.redirected) Desktop::onFailure("the batch file writes a file: " + path_);
    runCommand(command.words);
  }
  if (!waiting_) running_ = false;
}

void BatchProcess::runCommand(const std::vector<std::string>& words) {
  const std::string command = foldCase(words.front());
  if (words.size() == 2 && command.ends_with("\\korventally.exe")) {
    startEngine(words[0], words[1]);
  } else if (words.size() == 2 && command == "notepad") {
    world().notepad.push_back(words[1]);
    waiting_ = true;
    holdBatchFile();  // for ever: nobody closes notepad here
  } else if (words.size() == 1 && command == "pause") {
    waiting_ = true;
  } else {
    std::string all;
    for (const std::string& word : words) all += " [" + word + "]";
    Desktop::onFailure("the interpreter runs a command that was never meant:" + all);
  }
}

void BatchProcess::startEngine(const std::string& program, const std::string& controlFile) {
  // Without the program the interpreter complains in its own window and goes on.
  if (!fileExists(program)) return;
  ++world().enginesStarted;
  waiting_ = true;
  holdBatchFile();
  engine_ = std::make_shared<EngineProcess>(controlFile,
                                            [weak = weak_from_this()] { weak.lock()->goOn(); });
  if (world().script) world().script(*engine_);
}

void BatchProcess::holdBatchFile() const { Desktop::current().lockFile(path_, kForEver); }

void BatchProcess::letGoOfBatchFile() const {
  if (Desktop::current().fileBytes(path_)) Desktop::current().lockFile(path_, 0);
}

void BatchProcess::goOn() {
  // Ended meanwhile, which the engine has outlived: the file is no longer this interpreter's.
  if (!running_) return (void)(engine_ = nullptr);
  letGoOfBatchFile();
  engine_ = nullptr;
  waiting_ = false;
  runCommands();
}

void BatchProcess::terminate() {
  engine_ = nullptr;
  endInterpreter();
}

void BatchProcess::endInterpreter() {
  if (running_) letGoOfBatchFile();
  running_ = false;
}

}  // namespace korventally::headless
