#include "platform/events.h"

#include <cstdint>
#include <functional>
#include <utility>

#include "platform/headless/desktop.h"
#include "platform/headless/world.h"
#include "platform/later.h"
#include "platform/window.h"

namespace korventally {
namespace {

Desktop::World& world() { return Desktop::current().world(); }

/// The user turns to the youngest window and does there what the test has in mind.
bool visitYoungestWindow() {
  if (world().shown.empty() || !world().shown.back().visit) return false;
  const auto visit = std::exchange(world().shown.back().visit, nullptr);
  visit(*world().shown.back().window);
  return true;
}

}  // namespace

std::uint32_t tickCount() { return world().clock.ticks(); }

void processPendingEvents() {
  world().clock.step(Desktop::kYieldStep);
  runDue();
}

void runEventsWhile(const std::function<bool()>& goOn) {
  while (goOn()) {
    if (visitYoungestWindow()) continue;
    if (world().clock.nothingPlanned() && !untilNextDue()) {
      const bool anyOpen = !Window::openWindows().empty();
      Desktop::onFailure("left open for ever: " +
                         (anyOpen ? Window::openWindows().back()->text() : "no window"));
      Window::unloadAll();
      return;
    }
    processPendingEvents();
  }
}

/// Every yield does it, and no time passes in a dialog.
void callRunDueIn(std::uint32_t) {}

BelowNormalPriority::BelowNormalPriority() { ++world().lowPriorities; }
BelowNormalPriority::~BelowNormalPriority() { --world().lowPriorities; }

}  // namespace korventally
