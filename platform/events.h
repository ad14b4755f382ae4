#pragma once

#include <cstdint>
#include <functional>

namespace korventally {

/// Milliseconds since Windows started; wraps round after 2^32.
std::uint32_t tickCount();

/// Handles what the user and Windows have in store for the windows, and what is due of `runLater`,
/// then hands the rest of the time slice to other processes. Handlers of any window may run inside.
/// Returns after a few hundred events at most; the rest waits for the next call.
void processPendingEvents();

/// Handles events, sleeping in between, for as long as `goOn` says so. A request to quit closes
/// every window.
void runEventsWhile(const std::function<bool()>& goOn);

/// Has `runDue` called `delay` milliseconds from now, also while a message box, a dialog or a menu
/// of Windows is open, which handle events in a loop of their own. Takes the place of an earlier
/// request.
void callRunDueIn(std::uint32_t delay);

/// While one exists, of one at most, this thread runs below normal priority, so that a busy wait
/// does not cost the process that is waited for.
class BelowNormalPriority {
 public:
  BelowNormalPriority();
  ~BelowNormalPriority();
  BelowNormalPriority(const BelowNormalPriority&) = delete;
  BelowNormalPriority& operator=(const BelowNormalPriority&) = delete;
};

}  // namespace korventally
