#include "platform/guarded.h"

#include <exception>
#include <string>

#include "platform/dialogs.h"

namespace korventally {

void runGuarded(Window* owner, const std::function<void()>& handler) {
  if (!handler) return;
  try {
    handler();
  } catch (const std::exception& failure) {
    messageBox(owner, std::string("This could not be finished: ") + failure.what(), kErrorTitle);
  }
}

}  // namespace korventally
