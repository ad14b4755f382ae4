#pragma once

#include <windows.h>

namespace korventally::win32 {

/// Sees every message before its window does and handles the keys that belong to the window as a
/// whole: Tab, Esc, Enter on a button, the arrows among option buttons. What the control with the
/// focus has no use for of Page Up, Page Down, Home, End and the arrows scrolls the window, if that
/// is too large for its screen. Says whether it did something with the key.
bool handleKey(const MSG& message);

}  // namespace korventally::win32
