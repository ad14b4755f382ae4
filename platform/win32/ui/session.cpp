#include "platform/win32/ui/session.h"

#include <optional>
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

/// No code of ours may get to run any more once the message has been answered.
void endNow() {
  hurryLater();
  const std::vector<Window*> open = Window::openWindows();
  for (Window* each : open) each->sessionEnds();
}

/// The windows that are open object to the end; this one only hears of it.
LRESULT CALLBACK watch(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_ENDSESSION) return *handleSessionEnd(window, message, first);
  return DefWindowProcW(window, message, first, second);
}

/// A window that nobody sees.
class SessionWatch {
 public:
  SessionWatch() {
    WNDCLASSW type{};
    type.lpfnWndProc = watch;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"KorvenTallySessionWatch";
    RegisterClassW(&type);
    window_ = CreateWindowExW(WS_EX_TOOLWINDOW, type.lpszClassName, L"", WS_POPUP, 0, 0, 0, 0,
                              nullptr, nullptr, type.hInstance, nullptr);
  }
  ~SessionWatch() { DestroyWindow(window_); }
  SessionWatch(const SessionWatch&) = delete;
  SessionWatch& operator=(const SessionWatch&) = delete;

 private:
  HWND window_;
};

}  // namespace

std::optional<LRESULT> handleSessionEnd(HWND window, UINT message, WPARAM first) {
  if (message == WM_QUERYENDSESSION) return mayEnd(window);
  if (message != WM_ENDSESSION) return std::nullopt;
  ShutdownBlockReasonDestroy(window);
  if (first) endNow();
  return 0;
}

void watchSession() { static SessionWatch session; }

}  // namespace korventally::win32
