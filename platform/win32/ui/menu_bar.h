#pragma once

#include <windows.h>

#include "platform/window.h"

namespace korventally::win32 {

/// A window's menus as a menu bar; none for a window without menus. The native window owns it.
HMENU createMenuBar(const Window& window);
/// Runs the entry that the user chose by its native number, if there is one.
void chooseMenuEntry(Window& window, int id);

}  // namespace korventally::win32
