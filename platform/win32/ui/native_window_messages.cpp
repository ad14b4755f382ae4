#include <optional>
#include <utility>

#include "platform/win32/ui/dropped_files.h"
#include "platform/win32/ui/menu_bar.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/native_window.h"
#include "platform/win32/ui/session.h"

namespace korventally::win32 {
namespace {

/// Pixels at 96 dpi that come into view around the control with the focus: as much as there is
/// between a box and the left edge of the window, or the caption of a frame above it.
constexpr int kAround = 32;

}  // namespace

LRESULT CALLBACK NativeWindow::procedure(HWND handle, UINT message, WPARAM first, LPARAM second) {
  auto* self = reinterpret_cast<NativeWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  // While the window is being made or destroyed there is nobody to tell.
  if (self == nullptr) return DefWindowProcW(handle, message, first, second);
  return self->onMessage(message, first, second);
}

LRESULT NativeWindow::onMessage(UINT message, WPARAM first, LPARAM second) {
  if (const auto answer = NativeControl::reflect(message, first, second)) return *answer;
  if (const auto answer = handleAppearance(message, first, second)) return *answer;
  if (closed()) return DefWindowProcW(handle_, message, first, second);
  if (const auto answer = handleInput(message, first, second)) return *answer;
  if (const auto answer = handleSurroundings(message, first, second)) return *answer;
  if (const auto answer = handleSessionEnd(handle_, message, first)) return *answer;
  return DefWindowProcW(handle_, message, first, second);
}

std::optional<LRESULT> NativeWindow::handleInput(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_COMMAND:
      if (second == 0) chooseMenuEntry(window_, LOWORD(first));
      return 0;
    case WM_CLOSE:
      // Others may ask for it while a message box or another window lies over this one.
      if (IsWindowEnabled(handle_)) window_.requestClose();
      return 0;
    case WM_DROPFILES:
      window_.dropFiles(takeDrop(handle_, first));
      return 0;
    case WM_SETFOCUS:
      restoreFocus();
      return 0;
    case WM_SETCURSOR:
      toolTips_.mouseOver(reinterpret_cast<HWND>(first));
      return std::nullopt;
    case WM_GETOBJECT:
      names_.tell();
      return std::nullopt;
    case kNamesWanted:
      names_.tell();
      return 0;
    case kFocusArrived: {
      // A window opens at its beginning, wherever the first control that takes the focus is.
      if (!std::exchange(hadFocus_, true)) return 0;
      RECT area;
      GetWindowRect(reinterpret_cast<HWND>(second), &area);
      MapWindowPoints(nullptr, handle_, reinterpret_cast<POINT*>(&area), 2);
      InflateRect(&area, stage_.scaled(kAround), stage_.scaled(kAround));
      scroller_.reveal(area);
      return 0;
    }
    default:
      if (scroller_.handle(message, first)) return 0;
      return std::nullopt;
  }
}

std::optional<LRESULT> NativeWindow::handleAppearance(UINT message, WPARAM first, LPARAM) {
  switch (message) {
    case WM_ERASEBKGND:
      if (std::exchange(appeared_, true)) {
        paintGround(reinterpret_cast<HDC>(first));
      } else {
        paintAtOnce();
      }
      return 1;
    case kPaintSoiled:
      if (!closed()) paintSoiled();
      return 0;
    case WM_PRINTCLIENT:
      paintGround(reinterpret_cast<HDC>(first));
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> NativeWindow::handleSurroundings(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_DPICHANGED: {
      const auto& suggested = *reinterpret_cast<const RECT*>(second);
      stage_.setDpi(LOWORD(first));
      SetWindowPos(handle_, nullptr, suggested.left, suggested.top, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
      fit(false);
      return 0;
    }
    case WM_SIZE:
      if (first == SIZE_RESTORED && std::exchange(minimised_, false)) fit(false);
      minimised_ = minimised_ || first == SIZE_MINIMIZED;
      return std::nullopt;
    case WM_DISPLAYCHANGE:
      fit(false);
      return std::nullopt;
    case WM_SETTINGCHANGE:
      if (first == SPI_SETWORKAREA) fit(false);
      [[fallthrough]];
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      stage_.forgetTheme();
      RedrawWindow(handle_, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace korventally::win32
