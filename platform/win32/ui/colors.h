#pragma once

#include <windows.h>

#include "platform/color.h"

namespace korventally::win32 {

/// The colours on the screen for those of the model. In a high-contrast theme Windows' own
/// colours take their place, and a ground that marks something becomes the highlight.

/// Whether the user has asked for a high-contrast theme.
bool highContrast();

/// Text of the given colour on the given ground; unusable controls have grey text.
COLORREF textColor(OleColor text, OleColor ground, bool usable);
COLORREF groundColor(OleColor ground);
/// The line around a group.
COLORREF groupBorderColor();

/// For WM_CTLCOLOR...: sets the colours and returns the brush of the ground.
HBRUSH applyColors(HDC dc, COLORREF text, COLORREF ground);

}  // namespace korventally::win32
