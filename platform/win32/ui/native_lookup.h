#pragma once

#include <windows.h>

#include "platform/control.h"

namespace korventally::win32 {

/// Control numbers (GetDlgCtrlID) count from here in the order in which the form declares its
/// controls, those of a frame right behind the frame. Menu entries count from 1.
inline constexpr int kFirstControlId = 1000;

/// The native window of a control of an open window, or of the open window itself; none when the
/// window is not open.
HWND nativeHandle(const Control& control);

}  // namespace korventally::win32
