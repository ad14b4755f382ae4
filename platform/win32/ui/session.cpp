#include "platform/win32/ui/session.h"

#include <string>
#include <vector>

#include "platform/later.h"
#include "platform/win32/system/text.h"
#include "platform/window.h"

namespace korventally::win32 {
namespace {

/// Why the session should wait, for the screen that lists what holds it up.
std::string objection() {
  for (const Window* open : Window::openWindows()) {
    if (std::string reason = open->sessionEndObjection(); !reason.empty()) return reason;
  }
  return {};
}

bool mayEnd(HWND window) {
  const std::string reason = objection();
  if (reason.empty()) return true;
  ShutdownBlockReasonCreate(window, toWide(reason).c_str());
  return false;
}

/// There is no time to wait, and no code of ours may run once the message has been answered.
void endNow() {
  const std::vector<Window*> open = Window::openWindows();
  for (Window* each : open) each->sessionEnds();
  hurryLater();
}

}  // namespace

std::optional<LRESULT> handleSessionEnd(HWND window, UINT message, WPARAM first) {
  if (message == WM_QUERYENDSESSION) return mayEnd(window);
  if (message != WM_ENDSESSION) return std::nullopt;
  ShutdownBlockReasonDestroy(window);
  if (first) endNow();
  return 0;
}

}  // namespace korventally::win32
