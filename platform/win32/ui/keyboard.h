#pragma once

#include <windows.h>

namespace korventally::win32 {

/// Sees every message before its window does and handles the keys that belong to the window as a
/// whole: Tab, Esc, Enter on a button, the arrows among option buttons, and the keys that scroll a
/// window too large for its screen. Says whether it did.
bool handleKey(const MSG& message);

}  // namespace korventally::win32
