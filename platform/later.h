#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace korventally {

/// Work that is to be done some time after now, on this thread, while events are handled.

/// Runs `action` once, `delay` milliseconds from now. A new action under the same name replaces the
/// one that is still to come.
void runLater(std::string name, std::uint32_t delay, std::function<void()> action);

/// Runs the action of that name now, if it is still to come.
void runNow(const std::string& name);

/// For back ends: runs what is due at `tickCount()`.
void runDue();

/// For back ends: milliseconds until the next action; none when there is none to come.
std::optional<std::uint32_t> untilNextDue();

/// For tests: drops everything that is still to come, and there is time again.
void forgetLater();

/// Runs everything that is still to come, each at its time, handling events meanwhile.
void finishLater();

/// Runs everything that is still to come at once: from now on there is no time left.
void hurryLater();

/// Whether that is so: nobody may wait any more, nor ask the user anything.
bool timeIsUp();

}  // namespace korventally
