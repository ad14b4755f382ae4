#include "platform/win32/ui/painted_control.h"

#include <string_view>

#include "platform/container.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

/// Messages at which some versions of the system paint a button on the spot, in its own look.
bool changesLook(UINT message) {
  switch (message) {
    case BM_SETSTATE:
    case BM_SETCHECK:
    case WM_ENABLE:
    case WM_SETTEXT:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
      return true;
    default:
      return false;
  }
}

/// The private area where fonts with a symbol character set keep their 256 characters.
constexpr wchar_t kSymbolArea = 0xF000;

}  // namespace

LRESULT PaintedControl::onMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PRINTCLIENT:
      paintOn(reinterpret_cast<HDC>(first));
      return 0;
    case WM_PAINT:
      paintBuffered();
      return 0;
    default:
      const LRESULT answer = NativeControl::onMessage(message, first, second);
      if (changesLook(message)) invalidate();
      return answer;
  }
}

std::optional<LRESULT> PaintedControl::notify(const NMHDR& header) {
  if (header.code != static_cast<UINT>(NM_CUSTOMDRAW)) return std::nullopt;
  const auto& draw = reinterpret_cast<const NMCUSTOMDRAW&>(header);
  if (draw.dwDrawStage == CDDS_PREERASE) paintOn(draw.hdc);
  return CDRF_SKIPDEFAULT;
}

void PaintedControl::paintBuffered() {
  PAINTSTRUCT paint;
  HDC dc = BeginPaint(handle(), &paint);
  RECT area;
  GetClientRect(handle(), &area);
  HDC bufferDc = nullptr;
  if (HPAINTBUFFER buffer =
          BeginBufferedPaint(dc, &area, BPBF_COMPATIBLEBITMAP, nullptr, &bufferDc)) {
    paintOn(bufferDc);
    EndBufferedPaint(buffer, TRUE);
  } else {
    paintOn(dc);
  }
  EndPaint(handle(), &paint);
}

void PaintedControl::paintOn(HDC dc) {
  const KeepDc keep(dc);
  RECT area;
  GetClientRect(handle(), &area);
  SelectObject(dc, stage().font(model().font()));
  SetBkMode(dc, TRANSPARENT);
  paint(dc, area);
}

void PaintedControl::paintGround(HDC dc, const RECT& area) {
  fill(dc, area, groundColor(model().container()->backColor()));
}

std::wstring PaintedControl::caption() const {
  std::wstring text = toWide(model().text());
  if (std::string_view(model().font().face) != "Symbol") return text;
  for (wchar_t& unit : text) unit = static_cast<wchar_t>(unit + kSymbolArea);
  return text;
}

SIZE PaintedControl::captionSize(HDC dc) const {
  SIZE size{};
  const std::wstring text = caption();
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  return size;
}

bool PaintedControl::showsFocus() const {
  return GetFocus() == handle() &&
         !(SendMessageW(handle(), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS);
}

}  // namespace korventally::win32
