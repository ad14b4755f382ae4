#include "platform/win32/ui/colors.h"

#include "platform/color.h"
#include "platform/contrast.h"

namespace korventally::win32 {
namespace {

constexpr OleColor kSystemColor = 0x80000000;

COLORREF asStored(OleColor color) {
  if (color & kSystemColor) return GetSysColor(static_cast<int>(color & 0xFF));
  return static_cast<COLORREF>(color);
}

/// The colour of title-bar text as a ground, which is written on in blue. Windows 10 and 11 have it
/// black, and blue on black cannot be read: there it is the colour of a window.
COLORREF titleBarTextGround() {
  const COLORREF ground = asStored(colors::kTitleBarText);
  const bool readable = contrastRatio(colors::kBlue, ground) >= kReadableContrast;
  return readable ? ground : GetSysColor(COLOR_WINDOW);
}

/// Whether the ground says something, as the yellow of a wrong field does.
bool marks(OleColor ground) { return !(ground & kSystemColor) && ground != colors::kWhite; }

}  // namespace

bool highContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

COLORREF textColor(OleColor text, OleColor ground, bool usable) {
  if (!usable) return GetSysColor(COLOR_GRAYTEXT);
  if (!highContrast()) return asStored(text);
  if (marks(ground)) return GetSysColor(COLOR_HIGHLIGHTTEXT);
  return GetSysColor(ground == colors::kButtonFace ? COLOR_BTNTEXT : COLOR_WINDOWTEXT);
}

COLORREF groundColor(OleColor ground) {
  if (!highContrast()) {
    return ground == colors::kTitleBarText ? titleBarTextGround() : asStored(ground);
  }
  if (marks(ground)) return GetSysColor(COLOR_HIGHLIGHT);
  return GetSysColor(ground == colors::kButtonFace ? COLOR_BTNFACE : COLOR_WINDOW);
}

COLORREF groupBorderColor() {
  return highContrast() ? GetSysColor(COLOR_WINDOWTEXT) : RGB(0xD0, 0xD0, 0xD0);
}

HBRUSH applyColors(HDC dc, COLORREF text, COLORREF ground) {
  SetTextColor(dc, text);
  SetBkColor(dc, ground);
  // The brush of the device context takes any colour and belongs to nobody.
  SetDCBrushColor(dc, ground);
  return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

}  // namespace korventally::win32
