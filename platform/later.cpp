#include "platform/later.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/events.h"

namespace korventally {
namespace {

struct Action {
  std::string name;
  std::uint32_t start;
  std::uint32_t delay;
  std::function<void()> run;

  /// Milliseconds still to go. The subtraction is unsigned, so it holds across the wrap of the tick
  /// counter.
  std::uint32_t remaining() const {
    const std::uint32_t elapsed = tickCount() - start;
    return elapsed >= delay ? 0 : delay - elapsed;
  }
};

std::vector<Action>& actions() {
  static std::vector<Action> list;
  return list;
}

bool& noTimeLeft() {
  static bool none = false;
  return none;
}

std::vector<Action>::iterator nextAction() {
  return std::min_element(actions().begin(), actions().end(), [](const Action& a, const Action& b) {
    return a.remaining() < b.remaining();
  });
}

/// Taken out of the list first, because an action may handle events or plan another one.
void runAndRemove(std::vector<Action>::iterator action) {
  const std::function<void()> run = std::move(action->run);
  actions().erase(action);
  run();
}

}  // namespace

void runLater(std::string name, std::uint32_t delay, std::function<void()> action) {
  std::erase_if(actions(), [&](const Action& planned) { return planned.name == name; });
  actions().push_back({std::move(name), tickCount(), delay, std::move(action)});
  callRunDueIn(nextAction()->remaining());
}

void runNow(const std::string& name) {
  const auto named = std::find_if(actions().begin(), actions().end(),
                                  [&](const Action& planned) { return planned.name == name; });
  if (named != actions().end()) runAndRemove(named);
}

void runDue() {
  while (untilNextDue() == 0u) runAndRemove(nextAction());
}

std::optional<std::uint32_t> untilNextDue() {
  const auto next = nextAction();
  if (next == actions().end()) return std::nullopt;
  return next->remaining();
}

void forgetLater() {
  actions().clear();
  noTimeLeft() = false;
}

void finishLater() {
  runEventsWhile([] { return !actions().empty(); });
}

void hurryLater() {
  noTimeLeft() = true;
  while (!actions().empty()) runAndRemove(actions().begin());
}

bool timeIsUp() { return noTimeLeft(); }

}  // namespace korventally
