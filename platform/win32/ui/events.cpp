#include "platform/events.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "platform/guarded.h"
#include "platform/later.h"
#include "platform/win32/ui/keyboard.h"
#include "platform/window.h"

namespace korventally {
namespace {

/// A program that floods this one with messages must not keep it from its work.
constexpr int kMostAtOnce = 200;

/// Handles messages, and posts a request to quit again when it goes, so that the loops around it
/// end too.
class MessagePump {
 public:
  MessagePump() = default;
  MessagePump(const MessagePump&) = delete;
  MessagePump& operator=(const MessagePump&) = delete;
  ~MessagePump() {
    if (quit_) PostQuitMessage(*quit_);
  }

  /// Handles the next message; false when there is none.
  bool handleNext() {
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
    if (message.message == WM_QUIT) {
      quit_ = static_cast<int>(message.wParam);
      Window::unloadAll();
    } else if (!win32::handleKey(message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    return true;
  }

 private:
  std::optional<int> quit_;
};

/// What is due is run by this timer alone: every loop that handles messages hands them to it, those
/// of message boxes, dialogs and menus too.
UINT_PTR dueTimer = 0;

void CALLBACK timerWentOff(HWND, UINT, UINT_PTR, DWORD) {
  runGuarded(nullptr, runDue);
  if (const auto next = untilNextDue()) return callRunDueIn(*next);
  KillTimer(nullptr, std::exchange(dueTimer, 0));
}

}  // namespace

std::uint32_t tickCount() { return GetTickCount(); }

void processPendingEvents() {
  {
    MessagePump pump;
    for (int count = 0; count < kMostAtOnce && pump.handleNext(); ++count) continue;
  }
  SwitchToThread();
}

void runEventsWhile(const std::function<bool()>& goOn) {
  MessagePump pump;
  while (goOn()) {
    // A message that another program has sent is handled while this one looks for the next, which
    // then may be none: so the condition is asked once more.
    if (!pump.handleNext() && goOn()) WaitMessage();
  }
}

void callRunDueIn(std::uint32_t delay) {
  dueTimer = SetTimer(nullptr, dueTimer, delay, timerWentOff);
}

BelowNormalPriority::BelowNormalPriority() {
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
}

BelowNormalPriority::~BelowNormalPriority() {
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_NORMAL);
}

}  // namespace korventally
