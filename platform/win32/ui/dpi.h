#pragma once

#include <windows.h>

namespace korventally::win32 {

/// The calls that know the resolution of one window, so that it is sharp on every screen. A Windows
/// without them, older than 10, knows a single resolution, which then stands for all windows.

/// Dots per inch of the screen that the window counts as being on.
int dpiOf(HWND window);
/// Grows a client area to the whole window around it.
void growToWindow(RECT& area, DWORD style, bool menu, DWORD extendedStyle, int dpi);
/// A measure of Windows, such as SM_CXVSCROLL, in pixels.
int systemMetric(int index, int dpi);

}  // namespace korventally::win32
