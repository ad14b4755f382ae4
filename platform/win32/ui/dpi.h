#pragma once

#include <windows.h>

namespace korventally::win32 {

/// Sharpness on every screen: the calls that know the resolution of one window, and what stands in
/// for them on the systems that tell this program of a single resolution only.

int dpiOf(HWND window);
/// Grows a client area to the whole window around it.
void growToWindow(RECT& area, DWORD style, bool menu, DWORD extendedStyle, int dpi);
/// A measure of Windows, such as SM_CXVSCROLL.
int systemMetric(int index, int dpi);

}  // namespace korventally::win32
