#include "platform/headless/desktop.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/headless/path.h"
#include "platform/headless/world.h"
#include "platform/later.h"
#include "platform/process.h"
#include "platform/result.h"
#include "platform/window.h"

namespace korventally {
namespace {

Desktop* theDesktop = nullptr;

/// For the test's own calls, which name paths that can exist.
std::string fullPath(const std::string& path) {
  const auto full = headless::resolve(path);
  if (!full) throw std::logic_error("a test names no path: " + path);
  return full.value().text;
}

/// Says which of the dialogs that were expected have not come.
void reportMissing(const Desktop::World& world) {
  for (const auto& message : world.messages) {
    Desktop::onFailure("expected message that never came: " + message.text);
  }
  if (!world.openFiles.empty()) Desktop::onFailure("expected open-file dialog never came");
  if (!world.browsers.empty()) Desktop::onFailure("expected folder browser never came");
  if (!world.visits.empty()) Desktop::onFailure("expected window never came");
}

}  // namespace

std::function<void(const std::string&)> Desktop::onFailure = [](const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  std::abort();
};

Desktop::Desktop() : world_(std::make_unique<World>()) {
  if (theDesktop != nullptr) throw std::logic_error("there is a desktop already");
  theDesktop = this;
  forgetLater();
  setInstallationDirectory("C:\\KorvenTally");
}

Desktop::~Desktop() {
  if (!Window::openWindows().empty()) {
    onFailure("left open: " + Window::openWindows().back()->text());
    Window::unloadAll();
  }
  reportMissing(*world_);
  forgetLater();
  theDesktop = nullptr;
}

Desktop& Desktop::current() {
  if (theDesktop == nullptr) throw std::logic_error("there is no desktop");
  return *theDesktop;
}

void Desktop::makeFolder(const std::string& path) { world_->files.makeFolder(fullPath(path)); }

void Desktop::putFile(const std::string& path, std::string bytes, Attribute attribute) {
  world_->files.put(fullPath(path), std::move(bytes)).attribute = attribute;
}

void Desktop::appendFile(const std::string& path, const std::string& bytes) {
  const headless::Node* node = world_->files.find(fullPath(path));
  if (node == nullptr) return putFile(path, bytes);
  // What cannot be written is lost, as with a program that does not look.
  if (node->bytes) node->bytes->append(bytes);
}

void Desktop::removeFile(const std::string& path) { world_->files.remove(fullPath(path)); }

std::optional<std::string> Desktop::fileBytes(const std::string& path) const {
  const headless::Node* node = world_->files.find(fullPath(path));
  if (node == nullptr || node->isFolder) return std::nullopt;
  return *node->bytes;
}

std::vector<std::string> Desktop::list(const std::string& folder) const {
  std::vector<std::string> names;
  for (const headless::Node* node : world_->files.entries(fullPath(folder))) {
    const std::string name = node->path.substr(node->path.rfind('\\') + 1);
    names.push_back(node->isFolder ? name + '\\' : name);
  }
  return names;
}

void Desktop::lockFile(const std::string& path, std::uint32_t milliseconds) {
  headless::Node* node = world_->files.find(fullPath(path));
  if (node == nullptr) throw std::logic_error("a test locks a file that is not there: " + path);
  node->lockedUntil = world_->clock.time() + milliseconds;
}

void Desktop::cutOff(const std::string& folder) { world_->files.cutOff(fullPath(folder)); }

void Desktop::reconnect() { world_->files.cutOff(""); }

void Desktop::setInstallationDirectory(std::string path) {
  makeFolder(path);
  world_->installation = std::move(path);
}

void Desktop::failCall(Operation operation, int nth, Error error, bool fromThenOn) {
  world_->faults.plan(operation, nth, std::move(error), fromThenOn);
}

void Desktop::beforeEach(Operation operation, std::function<void()> action) {
  world_->faults.doBefore(operation, std::move(action));
}

int Desktop::calls(Operation operation) const { return world_->faults.calls(operation); }

std::uint32_t Desktop::now() const { return world_->clock.ticks(); }
void Desktop::setTicks(std::uint32_t ticks) { world_->clock.setTicks(ticks); }

void Desktop::at(std::uint32_t delay, std::function<void()> action) {
  world_->clock.at(world_->clock.time() + delay, std::move(action));
}

void Desktop::advance(std::uint32_t milliseconds) {
  const std::uint64_t end = world_->clock.time() + milliseconds;
  while (world_->clock.time() < end) processPendingEvents();
}

void Desktop::answerMessages(Answerer answerer) { world_->answerer = std::move(answerer); }

void Desktop::expectMessage(std::string text, std::string title, Answer answer,
                            std::function<void()> meanwhile) {
  world_->messages.push_back({std::move(text), std::move(title), answer, std::move(meanwhile)});
}

void Desktop::expectOpenFile(std::string path, std::function<void(const CommonDialog&)> look) {
  world_->openFiles.push_back({std::move(path), std::move(look)});
}

void Desktop::expectBrowser(std::string path, std::function<void(const Browser&)> look) {
  world_->browsers.push_back({std::move(path), std::move(look)});
}

void Desktop::expectWindow(std::function<void(Window&)> visit) {
  world_->visits.push_back(std::move(visit));
}

bool Desktop::takesInput(const Window& window) const {
  return window.isOpen() &&
         std::none_of(world_->shown.begin(), world_->shown.end(),
                      [&](const headless::ShownWindow& shown) { return shown.owner == &window; });
}

const std::vector<std::string>& Desktop::announcements() const { return world_->announcements; }

void Desktop::setEngine(EngineScript script) { world_->script = std::move(script); }
const std::vector<std::string>& Desktop::filesInNotepad() const { return world_->notepad; }
const std::vector<WindowStyle>& Desktop::startStyles() const { return world_->styles; }
int Desktop::enginesStarted() const { return world_->enginesStarted; }
bool Desktop::belowNormalPriority() const { return world_->lowPriorities > 0; }

bool Desktop::enginesRunning() const {
  return std::any_of(world_->processes.begin(), world_->processes.end(),
                     [](const auto& process) { return process->engineRunning(); });
}

}  // namespace korventally
