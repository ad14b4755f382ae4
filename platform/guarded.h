#pragma once

#include <functional>

namespace korventally {

class Window;

/// Runs a handler that the system has called. No exception may reach the system's own code above;
/// the usual one, missing memory, is told to the person instead. `owner` may be none.
void runGuarded(Window* owner, const std::function<void()>& handler);

}  // namespace korventally
