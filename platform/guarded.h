#pragma once

#include <functional>

namespace korventally {

class Window;

/// Runs a handler, none for nothing to do, that code of Windows may be waiting for above. No
/// exception may reach that code: the user is told of it in a message box over `owner`, which may
/// be none.
void runGuarded(Window* owner, const std::function<void()>& handler);

}  // namespace korventally
