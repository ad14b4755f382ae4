#include "platform/win32/ui/painted_control.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/container.h"
#include "platform/font.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/window.h"

namespace korventally::win32 {
namespace {

/// Messages at which some versions of Windows paint a button on the spot, in its own look.
bool changesLook(UINT message) {
  switch (message) {
    case BM_SETSTATE:
    case BM_SETCHECK:
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

/// The arrows of the symbol character set, and those of any text font.
constexpr wchar_t kSymbolArrows[] = {0xAC, 0xAE};
constexpr wchar_t kTextArrows[] = {0x2190, 0x2192};

bool isSymbol(const Font& font) { return std::string_view(font.face) == "Symbol"; }

std::wstring inSymbolFont(std::wstring text) {
  for (wchar_t& unit : text) unit = static_cast<wchar_t>(unit + kSymbolArea);
  return text;
}

std::wstring inTextFont(std::wstring text) {
  for (std::size_t arrow = 0; arrow < std::size(kSymbolArrows); ++arrow) {
    std::replace(text.begin(), text.end(), kSymbolArrows[arrow], kTextArrows[arrow]);
  }
  return text;
}

/// Whether the selected font has every character of a text.
bool fontShows(HDC dc, const std::wstring& text) {
  std::vector<WORD> glyphs(text.size());
  GetGlyphIndicesW(dc, text.c_str(), static_cast<int>(text.size()), glyphs.data(),
                   GGI_MARK_NONEXISTING_GLYPHS);
  return std::find(glyphs.begin(), glyphs.end(), WORD{0xFFFF}) == glyphs.end();
}

}  // namespace

LRESULT PaintedControl::onMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PRINTCLIENT:
      paintFor(reinterpret_cast<HDC>(first));
      return 0;
    case WM_PAINT:
      paintBuffered();
      return 0;
    case WM_ENABLE:  // Windows' own control would only show it, in its own look
      lookChanged();
      return 0;
    default:
      const LRESULT answer = NativeControl::onMessage(message, first, second);
      if (changesLook(message)) lookChanged();
      return answer;
  }
}

std::optional<LRESULT> PaintedControl::notify(const NMHDR& header) {
  if (header.code != static_cast<UINT>(NM_CUSTOMDRAW)) return std::nullopt;
  const auto& draw = reinterpret_cast<const NMCUSTOMDRAW&>(header);
  if (draw.dwDrawStage == CDDS_PREERASE) paintFor(draw.hdc);
  return CDRF_SKIPDEFAULT;
}

void PaintedControl::paintBuffered() {
  PAINTSTRUCT paint;
  HDC dc = BeginPaint(handle(), &paint);
  RECT area;
  GetClientRect(handle(), &area);
  if (HDC buffer = stage().buffer(dc, {area.right, area.bottom})) {
    paintFor(buffer);
    BitBlt(dc, 0, 0, area.right, area.bottom, buffer, 0, 0, SRCCOPY);
  } else {
    paintFor(dc);
  }
  EndPaint(handle(), &paint);
}

void PaintedControl::paintFor(HDC dc) {
  const KeepDc keep(dc);
  paintOn(dc);
}

void PaintedControl::paintOn(HDC dc) {
  RECT area;
  GetClientRect(handle(), &area);
  selectFont(dc);
  SetBkMode(dc, TRANSPARENT);
  paint(dc, area);
}

/// Free replacements of the Symbol font may lack its arrows; any text font has arrows of its own.
void PaintedControl::selectFont(HDC dc) {
  const Font& font = model().font();
  HFONT wanted = stage().font(font);
  if (GetCurrentObject(dc, OBJ_FONT) != wanted) SelectObject(dc, wanted);
  caption_ = toWide(model().text());
  if (!isSymbol(font)) return;
  if (fontShows(dc, inSymbolFont(caption_))) {
    caption_ = inSymbolFont(caption_);
  } else {
    caption_ = inTextFont(caption_);
    SelectObject(dc, stage().font({"Arial", font.points, font.bold}));
  }
}

void PaintedControl::paintGround(HDC dc, const RECT& area) {
  fill(dc, area, groundColor(model().container()->backColor()));
}

SIZE PaintedControl::captionSize(HDC dc) const {
  SIZE size{};
  GetTextExtentPoint32W(dc, caption_.c_str(), static_cast<int>(caption_.size()), &size);
  return size;
}

bool PaintedControl::hasKeyboard() const {
  return model().window().focused() == &model() && GetFocus() == handle();
}

bool PaintedControl::showsFocus() const {
  return hasKeyboard() && !(SendMessageW(handle(), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS);
}

}  // namespace korventally::win32
