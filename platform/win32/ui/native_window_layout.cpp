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

/// Of the screen that holds most of a window.
RECT workAreaAround(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

}  // namespace

void NativeWindow::fit(bool centre) {
  // A window that is minimised has no size of its own to be fitted: it is when it comes back.
  if (IsIconic(handle_)) return;
  const int dpi = stage_.dpi();
  const SIZE contents{stage_.fromTwips(window_.place().width),
                      stage_.fromTwips(window_.place().height)};
  const auto style = static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE));
  const auto extendedStyle = static_cast<DWORD>(GetWindowLongW(handle_, GWL_EXSTYLE));
  RECT outer{0, 0, contents.cx, contents.cy};
  growToWindow(outer, style & ~(WS_VSCROLL | WS_HSCROLL), GetMenu(handle_) != nullptr,
               extendedStyle, stage_.dpi());
  SIZE size = sizeOf(outer);
  const SIZE edges{size.cx - contents.cx, size.cy - contents.cy};

  // A scroll bar on one side takes room on the other, where it may make a second one necessary.
  const RECT work = workAreaAround(centre && owner_ != nullptr ? owner_ : handle_);
  const SIZE most = sizeOf(work);
  SIZE bars{};
  const int barWidth = systemMetric(SM_CXVSCROLL, stage_.dpi());
  for (int pass = 0; pass < 2; ++pass) {
    if (size.cy + bars.cy > most.cy) bars.cx = barWidth;
    if (size.cx + bars.cx > most.cx) bars.cy = barWidth;
  }
  size = {std::min(size.cx + bars.cx, most.cx), std::min(size.cy + bars.cy, most.cy)};

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
  scroller_.setSizes(contents, {size.cx - edges.cx - bars.cx, size.cy - edges.cy - bars.cy});
  placeControls();
}

void NativeWindow::placeControls() {
  for (const auto& [model, control] : controls_) {
    const bool onWindow = model->container() == &window_;
    control->place(onWindow ? scroller_.offset() : POINT{});
  }
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace korventally::win32
