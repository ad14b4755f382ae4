#pragma once

#include <windows.h>

#include <optional>

namespace korventally::win32 {

/// Answers the messages that tell a window of the end of the session, for all the windows that are
/// open; none for every other message.
std::optional<LRESULT> handleSessionEnd(HWND window, UINT message, WPARAM first);

}  // namespace korventally::win32
