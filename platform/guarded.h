#pragma once

#include <functional>

namespace korventally {

class Window;

/// Runs a handler that Windows has called. No exception may reach Windows' own code above;
/// the usual one, missing memory, is told to the user instead. `owner` may be none.
void runGuarded(Window* owner, const std::function<void()>& handler);

}  // namespace korventally
