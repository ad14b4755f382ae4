#include "platform/headless/batch_process.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/headless/command_line.h"
#include "platform/headless/desktop.h"
#include "platform/headless/engine_process.h"
#include "platform/headless/path.h"
#include "platform/headless/world.h"

namespace korventally::headless {
namespace {

constexpr std::uint32_t kForEver = 0xFFFFFFFF;

Desktop::World& world() { return Desktop::current().world(); }

std::vector<std::string> linesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', start), bytes.size());
    std::string line = bytes.substr(start, end - start);
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(std::move(line));
    start = end + 1;
  }
  return lines;
}

}  // namespace

void BatchProcess::start() {
  if (!world().files.reaches(path_)) {
    // The interpreter complains in its own window and ends.
  } else if (const auto bytes = Desktop::current().fileBytes(path_)) {
    lines_ = linesOf(fromAnsi(*bytes));
  } else {
    Desktop::onFailure("a batch file was started that is not there: " + path_);
  }
  runLines();
}

void BatchProcess::runLines() {
  while (running_ && !waiting_ && !lines_.empty()) {
    const std::string line = lines_.front();
    lines_.erase(lines_.begin());
    const auto commands = readCommandLine(line);
    if (!commands) Desktop::onFailure("the interpreter cannot make sense of: " + line);
    // The batch files of this program never hold two commands in a line.
    for (const auto& words : commands.value_or(std::vector<std::vector<std::string>>{})) {
      runCommand(words);
    }
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
  runLines();
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
