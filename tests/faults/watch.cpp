#include "tests/faults/watch.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "case/basModule.h"
#include "case/run_files.h"
#include "platform/files.h"
#include "platform/headless/desktop.h"
#include "platform/window.h"
#include "run/frmRunSummary.h"
#include "tests/study.h"

namespace korventally::testing {
namespace {

constexpr std::uint32_t kMostWithoutEvents = 100;
constexpr std::uint32_t kBetweenQuestions = 20'000;
/// The lines of a control file but for those of its groups, of which each has two.
constexpr std::size_t kFixedLines = 16;

bool isWholeControlFile(const std::string& bytes) {
  std::vector<std::string> values;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", at);
    if (end == bytes.npos || bytes.compare(at, 30, std::string(29, ' ') + ":") != 0) return false;
    values.push_back(bytes.substr(at + 30, end - at - 30));
    at = end + 2;
  }
  return values.size() > 4 && values.size() == kFixedLines + 2 * std::stoul(values[4]);
}

/// Blanks, for one, are a name of the current folder.
std::string listFile() {
  return absolutePath(basModule::analysisCase.WorkDir + basModule::analysisCase.ListFile);
}

bool isOwn(const std::string& name) {
  return std::find(kOwnFiles.begin(), kOwnFiles.end(), name) != kOwnFiles.end();
}

}  // namespace

Watch::Watch(Desktop& desktop, std::vector<std::string>& violations)
    : desktop_(desktop), violations_(violations), before_(files()), lastLook_(desktop.now()) {}

void Watch::expect(bool holds, const std::string& what) {
  if (!holds) violations_.push_back(what);
}

void Watch::look() {
  const std::uint32_t gap = desktop_.now() - lastLook_;
  if (gap > kMostWithoutEvents) expect(false, "no events for " + std::to_string(gap) + " ms");
  lastLook_ = desktop_.now();
  engineRunning_ = desktop_.enginesRunning();
  if (Window::openWindows().empty()) return;
  const auto* summary = dynamic_cast<const frmRunSummary*>(Window::openWindows().back());
  if (summary != nullptr) checkVerdict(*summary);
}

/// A verdict is one of an engine that was started for it.
void Watch::checkVerdict(const frmRunSummary& summary) {
  const std::string& status = summary.lblStatus.text();
  if (status == lastStatus_) return;
  lastStatus_ = status;
  if (status.empty()) return;
  awaited_ = false;
  expect(desktop_.enginesStarted() > enginesAtLastRun_, "a verdict without an engine");
  const auto list =
      desktop_.fileBytes(basModule::analysisCase.WorkDir + basModule::analysisCase.ListFile);
  const char* const verdict = status == "RUN COMPLETED" ? "RUN COMPLETED" : "RUN FAILED";
  expect(list && list->starts_with("KORVENTALLY listing") && list->find(verdict) != list->npos,
         "a verdict that the engine did not write: " + status);
  completed_ += status == "RUN COMPLETED" ? 1 : 0;
}

void Watch::engineStarts(const Desktop::Engine& engine) {
  expect(!engineRunning_ || !awaited_, "a second engine beside the first");
  awaited_ = true;
  expect(isWholeControlFile(engine.controlBytes()), "the engine got half a control file");
  expect(engine.controlFile() == basModule::analysisCase.WorkDir + kControlFile,
         "the engine got the path " + engine.controlFile());
}

/// A failure says what, the full path, and the system's reason with its number.
void Watch::messageShown(const std::string& text, bool question, bool yes) {
  messages_.push_back(text);
  if (text.find("already exists. Do you wish to overwrite it?") != text.npos && yes) {
    mayOverwrite_ = true;
  }
  if (text.find("Access is denied.") != text.npos) {
    expect(text.find("Access is denied. (5)") != text.npos && text.find(":\\") != text.npos,
           "a failure without path or number: " + text);
  }
  if (text.find("Keep waiting for it?") != text.npos) {
    expect(!asked_ || desktop_.now() - *asked_ > kBetweenQuestions, "asked again at once: " + text);
    asked_ = desktop_.now();
  }
  if (question || pressed_.empty()) return;
  const auto since = messages_.begin() + static_cast<std::ptrdiff_t>(pressed_.back().messages);
  expect(std::count(since, messages_.end(), text) == 1, "said twice: " + text);
}

void Watch::runPressed() {
  asked_.reset();
  enginesAtLastRun_ = desktop_.enginesStarted();
  lastStatus_.clear();
  ++runs_;
  pressed_.push_back(
      {messages_.size(), desktop_.filesInNotepad().size(), interruptions_, runs_, desktop_.now()});
}

void Watch::runReturned(const frmRunSummary& summary) {
  const Pressed pressed = pressed_.back();
  pressed_.pop_back();
  // A run takes its time; a press that took none, inside another one, was none.
  if (!pressed_.empty() && desktop_.now() == pressed.when) return (void)--runs_;
  if (interruptions_ > pressed.interruptions || runs_ > pressed.runs) return;
  expect(summary.isOpen() && summary.cmdRUN.usable() && summary.cmdBack.usable() &&
             summary.lblRunning.text().empty(),
         "the window is not usable after a run");
  const bool told = messages_.size() > pressed.messages;
  if (summary.lblStatus.text().empty()) {
    expect(told, "nothing ran, and nobody was told");
  } else if (summary.chkAutoOpen.checked()) {
    expect(told || desktop_.filesInNotepad().size() > pressed.notepads,
           "no editor, and nobody was told");
  }
}

bool Watch::wasTold(const std::string& path) const {
  return std::any_of(messages_.begin(), messages_.end(),
                     [&](const std::string& text) { return text.find(path) != text.npos; });
}

void Watch::end() {
  const AnalysisCase& theCase = basModule::analysisCase;
  const std::map<std::string, std::string> after = files();
  for (const auto& [path, bytes] : before_) {
    const std::string name = path.substr(path.rfind('\\') + 1);
    const bool runsOwn = path.starts_with(kStudy) && isOwn(name) && name != kClaimFile;
    const bool agreed = path == listFile() && mayOverwrite_;
    if (runsOwn || agreed) continue;
    expect(after.contains(path) && after.at(path) == bytes, "the user's file changed: " + path);
  }
  for (const auto& [path, bytes] : after) {
    if (before_.contains(path) && before_.at(path) == bytes) continue;
    if (path == listFile() && bytes.starts_with("KORVENTALLY listing")) continue;
    const std::string name = path.substr(path.rfind('\\') + 1);
    if (theCase.DebugMode && (name == kControlFile || name == kBatchFile)) continue;
    expect(isOwn(name) && wasTold(path), "left without a word: " + path);
  }
}

std::map<std::string, std::string> Watch::files() const {
  std::map<std::string, std::string> all;
  for (const std::string folder : {"C:\\", "C:\\Study\\", "D:\\Prog\\"}) {
    for (const std::string& name : desktop_.list(folder)) {
      if (const auto bytes = desktop_.fileBytes(folder + name)) all[folder + name] = *bytes;
    }
  }
  return all;
}

}  // namespace korventally::testing
