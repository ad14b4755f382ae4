#include "platform/win32/ui/text_margins.h"

#include <algorithm>

#include "platform/win32/ui/gdi.h"

namespace korventally::win32 {
namespace {

/// What Windows leaves free above and below the line of text itself.
constexpr int kGap = 1;

int lineHeight(HWND box) {
  HDC dc = CreateCompatibleDC(nullptr);  // the screen's own would be asked of the system
  TEXTMETRICW metrics{};
  SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(box, WM_GETFONT, 0, 0)));
  GetTextMetricsW(dc, &metrics);
  DeleteDC(dc);
  return metrics.tmHeight;
}

RECT clientOnScreen(HWND box) {
  RECT area;
  GetClientRect(box, &area);
  MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

}  // namespace

void TextMargins::takeFrom(RECT& client, HWND box) {
  const int height = client.bottom - client.top;
  const int line = lineHeight(box);
  const int spare = line == 0 ? 0 : std::max(0, height - line - 2 * kGap);
  above_ = spare / 2;
  below_ = spare - above_;
  client.top += above_;
  client.bottom -= below_;
}

void TextMargins::paint(HWND box, COLORREF ground) const {
  if (above_ + below_ == 0) return;
  RECT window;
  GetWindowRect(box, &window);
  RECT client = clientOnScreen(box);
  OffsetRect(&client, -window.left, -window.top);
  HDC dc = GetWindowDC(box);
  fill(dc, {client.left, client.top - above_, client.right, client.top}, ground);
  fill(dc, {client.left, client.bottom, client.right, client.bottom + below_}, ground);
  ReleaseDC(box, dc);
}

bool TextMargins::contain(HWND box, POINT onScreen) const {
  RECT area = clientOnScreen(box);
  area.top -= above_;
  area.bottom += below_;
  return PtInRect(&area, onScreen);
}

}  // namespace korventally::win32
