#pragma once

#include <windows.h>

#include <optional>

namespace korventally::win32 {

/// Answers the messages that tell a window of the end of the session, for all the windows that are
/// open; none for every other message.
std::optional<LRESULT> handleSessionEnd(HWND window, UINT message, WPARAM first);

/// Called when a window closes under which no other is open: the program hears of the end of the
/// session from then on too, while it still has something to finish.
void watchSession();

}  // namespace korventally::win32
