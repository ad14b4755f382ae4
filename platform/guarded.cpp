#include "platform/guarded.h"

#include <exception>
#include <functional>
#include <new>
#include <string>

#include "platform/dialogs.h"

namespace korventally {

void runGuarded(Window* owner, const std::function<void()>& handler) {
  if (!handler) return;
  try {
    handler();
  } catch (const std::bad_alloc&) {
    messageBox(owner, "There is not enough memory to finish this.", kErrorTitle);
  } catch (const std::exception& failure) {
    messageBox(owner, std::string("KorvenTally ran into an internal error: ") + failure.what(),
               kErrorTitle);
  }
}

}  // namespace korventally
