#include <algorithm>

#include "platform/win32/ui/dpi.h"
#include "platform/win32/ui/native_window.h"

namespace korventally::win32 {
namespace {

SIZE sizeOf(const RECT& area) { return {area.right - area.left, area.bottom - area.top}; }

/// Moves a stretch of the given length, the least that it takes, into the one from `low` to `high`.
LONG inside(LONG start, LONG length, LONG low, LONG high) {
  return std::max(low, std::min(start, high - length));
}

/// What a window without scroll bars has around its client area.
SIZE edgesOf(HWND window, int dpi) {
  const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
  const auto extendedStyle = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
  RECT edges{};
  growToWindow(edges, style & ~(WS_VSCROLL | WS_HSCROLL), GetMenu(window) != nullptr, extendedStyle,
               dpi);
  return sizeOf(edges);
}

/// Of the screen that holds most of a window.
RECT workAreaAround(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

/// A window around its contents, no larger than the screen allows.
struct Fit {
  SIZE size;  ///< of the whole window
  SIZE page;  ///< of the part of the contents that shows
};

Fit fitAround(SIZE contents, SIZE edges, SIZE most, int barWidth) {
  SIZE size{contents.cx + edges.cx, contents.cy + edges.cy};
  // A scroll bar on one side takes room on the other, where it may make a second one necessary.
  SIZE bars{};
  for (int pass = 0; pass < 2; ++pass) {
    if (size.cy + bars.cy > most.cy) bars.cx = barWidth;
    if (size.cx + bars.cx > most.cx) bars.cy = barWidth;
  }
  size = {std::min(size.cx + bars.cx, most.cx), std::min(size.cy + bars.cy, most.cy)};
  return {size, {size.cx - edges.cx - bars.cx, size.cy - edges.cy - bars.cy}};
}

}  // namespace

void NativeWindow::fit(bool centre) {
  // A window that is minimised has no size of its own to be fitted: it is when it comes back.
  if (IsIconic(handle_)) return;
  const int dpi = stage_.dpi();
  const SIZE contents{stage_.fromTwips(window_.place().width),
                      stage_.fromTwips(window_.place().height)};
  const RECT work = workAreaAround(centre && owner_ != nullptr ? owner_ : handle_);
  const auto [size, page] =
      fitAround(contents, edgesOf(handle_, dpi), sizeOf(work), systemMetric(SM_CXVSCROLL, dpi));

  RECT at;
  GetWindowRect(handle_, &at);
  if (centre) {
    RECT around = work;
    if (owner_ != nullptr) GetWindowRect(owner_, &around);
    at.left = (around.left + around.right - size.cx) / 2;
    at.top = (around.top + around.bottom - size.cy) / 2;
  }
  SetWindowPos(handle_, nullptr, inside(at.left, size.cx, work.left, work.right),
               inside(at.top, size.cy, work.top, work.bottom), size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  if (stage_.dpi() != dpi) return;  // moved to another screen, and fitted to that one meanwhile
  const POINT before = scroller_.offset();
  scroller_.setSizes(contents, page);
  const POINT now = scroller_.offset();
  if (placedFor_ != dpi || before.x != now.x || before.y != now.y) placeControls();
}

void NativeWindow::placeControls() {
  placedFor_ = stage_.dpi();
  for (const auto& [model, control] : controls_) {
    const bool onWindow = model->container() == &window_;
    control->place(onWindow ? scroller_.offset() : POINT{});
  }
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace korventally::win32
