#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace korventally::win32 {

/// The text on the clipboard; empty when there is none or another program holds the clipboard.
std::wstring clipboardText(HWND window);

}  // namespace korventally::win32
