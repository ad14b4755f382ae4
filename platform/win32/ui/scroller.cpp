#include "platform/win32/ui/scroller.h"

#include <algorithm>

namespace korventally::win32 {
namespace {

constexpr int kLinesPerPage = 10;

/// The nearest position that shows the stretch from `start` to `end`; its start comes first.
LONG showing(LONG at, LONG page, LONG start, LONG end) {
  at = std::max(at, end - page);
  return std::min(at, start);
}

}  // namespace

void Scroller::setSizes(SIZE contents, SIZE page) {
  contents_ = contents;
  page_ = page;
  at_.x = std::clamp<LONG>(at_.x, 0, furthest().x);
  at_.y = std::clamp<LONG>(at_.y, 0, furthest().y);
  showBar(SB_HORZ, contents_.cx, page_.cx, at_.x);
  showBar(SB_VERT, contents_.cy, page_.cy, at_.y);
}

POINT Scroller::furthest() const {
  return {std::max<LONG>(0, contents_.cx - page_.cx), std::max<LONG>(0, contents_.cy - page_.cy)};
}

void Scroller::showBar(int bar, LONG contents, LONG page, LONG at) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = contents - 1;
  info.nPage = static_cast<UINT>(page);
  info.nPos = at;
  SetScrollInfo(window_, bar, &info, TRUE);
}

bool Scroller::handle(UINT message, WPARAM first) {
  switch (message) {
    case WM_VSCROLL:
    case WM_HSCROLL:
      turnBar(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(first));
      return true;
    case WM_MOUSEWHEEL:
      scrollTo({at_.x, at_.y - GET_WHEEL_DELTA_WPARAM(first) * page_.cy /
                                   (kLinesPerPage / 2 * WHEEL_DELTA)});
      return true;
    default:
      return false;
  }
}

void Scroller::turnBar(int bar, WORD code) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(window_, bar, &info);
  const int page = static_cast<int>(info.nPage);
  int at = info.nPos;
  switch (code) {
    case SB_LINEUP:
      at -= page / kLinesPerPage;
      break;
    case SB_LINEDOWN:
      at += page / kLinesPerPage;
      break;
    case SB_PAGEUP:
      at -= page;
      break;
    case SB_PAGEDOWN:
      at += page;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      at = info.nTrackPos;
      break;
    case SB_TOP:
      at = 0;
      break;
    case SB_BOTTOM:
      at = info.nMax;
      break;
  }
  scrollTo(bar == SB_VERT ? POINT{at_.x, at} : POINT{at, at_.y});
}

void Scroller::scrollTo(POINT at) {
  at.x = std::clamp<LONG>(at.x, 0, furthest().x);
  at.y = std::clamp<LONG>(at.y, 0, furthest().y);
  const int right = at_.x - at.x;
  const int down = at_.y - at.y;
  if (right == 0 && down == 0) return;
  at_ = at;
  showBar(SB_HORZ, contents_.cx, page_.cx, at_.x);
  showBar(SB_VERT, contents_.cy, page_.cy, at_.y);
  ScrollWindowEx(window_, right, down, nullptr, nullptr, nullptr, nullptr,
                 SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

void Scroller::reveal(const RECT& part) {
  scrollTo({showing(at_.x, page_.cx, at_.x + part.left, at_.x + part.right),
            showing(at_.y, page_.cy, at_.y + part.top, at_.y + part.bottom)});
}

}  // namespace korventally::win32
