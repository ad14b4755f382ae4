#include "platform/container.h"
#include "platform/control.h"
#include "platform/frame.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/gdi.h"
#include "platform/win32/ui/native_window.h"

namespace korventally::win32 {
namespace {

/// Where a control's client area is, seen from the window that holds it.
RECT clientWithin(HWND root, HWND control) {
  RECT area;
  GetClientRect(control, &area);
  MapWindowPoints(control, root, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

/// Where a control's window is, seen from the window that holds it.
RECT areaWithin(HWND root, HWND control) {
  RECT area;
  GetWindowRect(control, &area);
  MapWindowPoints(nullptr, root, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

/// Takes back what Windows has noted to be painted.
constexpr UINT kPainted = RDW_VALIDATE | RDW_NOERASE | RDW_NOFRAME;

}  // namespace

void NativeWindow::paintGround(HDC dc) {
  RECT area;
  GetClientRect(handle_, &area);
  fill(dc, area, groundColor(window_.backColor()));
}

void NativeWindow::paintInPlace(const Control& control, HDC dc) {
  const RECT at = areaWithin(handle_, handleOf(control));
  SetViewportOrgEx(dc, at.left, at.top, nullptr);
  IntersectClipRect(dc, 0, 0, at.right - at.left, at.bottom - at.top);
  controls_.at(&control)->paintOn(dc);
  SelectClipRgn(dc, nullptr);
  SetViewportOrgEx(dc, 0, 0, nullptr);
}

void NativeWindow::paintAtOnce() {
  RECT area;
  GetClientRect(handle_, &area);
  HDC screen = GetDCEx(handle_, nullptr, DCX_CACHE);  // not clipped by the controls
  if (HDC picture = stage_.buffer(screen, {area.right, area.bottom})) {
    const KeepDc keep(picture);
    paintGround(picture);
    RedrawWindow(handle_, nullptr, nullptr, kPainted | RDW_ALLCHILDREN);
    paintAllInto(window_, picture);
    BitBlt(screen, 0, 0, area.right, area.bottom, picture, 0, 0, SRCCOPY);
    paintTextBoxes(window_, screen);
  } else {
    paintGround(screen);
  }
  ReleaseDC(handle_, screen);
}

void NativeWindow::paintTextBoxes(const Container& container, HDC screen) {
  for (const Control* child : container.children()) {
    if (!child->visible()) continue;
    if (child->kind() == Control::Kind::kTextBox) paintTextBox(*child, screen);
    if (child->kind() == Control::Kind::kFrame) {
      paintTextBoxes(static_cast<const Frame&>(*child), screen);
    }
  }
}

void NativeWindow::paintTextBox(const Control& control, HDC screen) {
  HWND window = handleOf(control);
  if (&control == window_.focused()) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    return;
  }
  // Before the ground: some versions of Windows paint into it with the edge.
  SendMessageW(window, WM_NCPAINT, 1, 0);
  fill(screen, clientWithin(handle_, window), groundColor(control.backColor()));
  if (!control.text().empty()) RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE);
}

void NativeWindow::paintSoiled() {
  RECT area;
  GetClientRect(handle_, &area);
  const auto soiled = stage_.takeSoiled();
  HDC screen = GetDCEx(handle_, nullptr, DCX_CACHE);
  if (HDC picture = stage_.buffer(screen, {area.right, area.bottom})) {
    const KeepDc keep(picture);
    for (const Control* control : soiled) paintControl(*control, picture, screen);
  } else {
    RedrawWindow(handle_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
  }
  ReleaseDC(handle_, screen);
}

void NativeWindow::paintControl(const Control& control, HDC picture, HDC screen) {
  HWND window = handleOf(control);
  if (!IsWindowVisible(window)) return;
  if (control.kind() == Control::Kind::kTextBox) {
    RedrawWindow(window, nullptr, nullptr, kPainted);
    paintTextBox(control, screen);
    return;
  }
  paintInPlace(control, picture);
  const RECT at = areaWithin(handle_, window);
  excludeCovered(control, screen);
  BitBlt(screen, at.left, at.top, at.right - at.left, at.bottom - at.top, picture, at.left, at.top,
         SRCCOPY);
  SelectClipRgn(screen, nullptr);
}

void NativeWindow::excludeCovered(const Control& control, HDC dc) {
  const auto exclude = [&](const Control& other) {
    if (!other.visible()) return;
    const RECT covered = areaWithin(handle_, handleOf(other));
    ExcludeClipRect(dc, covered.left, covered.top, covered.right, covered.bottom);
  };
  if (control.kind() == Control::Kind::kFrame) {
    for (const Control* child : static_cast<const Frame&>(control).children()) exclude(*child);
  }
  if (control.kind() != Control::Kind::kLabel) return;
  for (const Control* neighbour : control.container()->children()) {
    if (neighbour->kind() != Control::Kind::kLabel) exclude(*neighbour);
  }
}

void NativeWindow::paintAllInto(const Container& container, HDC dc) {
  const auto paintAll = [&](bool labels) {
    for (const Control* child : container.children()) {
      if ((child->kind() == Control::Kind::kLabel) == labels) paintInto(*child, dc);
    }
  };
  paintAll(true);  // a label may reach into its neighbour, behind which it lies
  paintAll(false);
}

void NativeWindow::paintInto(const Control& control, HDC dc) {
  HWND window = handleOf(control);
  if (!(GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE)) return;
  if (control.kind() == Control::Kind::kTextBox) return;
  paintInPlace(control, dc);
  if (control.kind() == Control::Kind::kFrame) {
    paintAllInto(static_cast<const Frame&>(control), dc);
  }
}

}  // namespace korventally::win32
