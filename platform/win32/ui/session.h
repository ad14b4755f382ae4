#pragma once

#include <windows.h>

#include <optional>

namespace korventally::win32 {

/// Answers the messages that tell a window of the end of the session, for all the windows that are
/// open; none for every other message.
std::optional<LRESULT> handleSessionEnd(HWND window, UINT message, WPARAM first);

/// A window that nobody sees, so that the program hears of the end of the session also once its
/// last window has closed, while it still has something to finish.
class SessionWatch {
 public:
  SessionWatch();
  ~SessionWatch();
  SessionWatch(const SessionWatch&) = delete;
  SessionWatch& operator=(const SessionWatch&) = delete;

 private:
  HWND window_;
};

}  // namespace korventally::win32
