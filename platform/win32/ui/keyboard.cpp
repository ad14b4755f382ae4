#include "platform/win32/ui/keyboard.h"

#include <optional>

#include "platform/button.h"
#include "platform/control.h"
#include "platform/option_button.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/native_window.h"

namespace korventally::win32 {
namespace {

bool isDown(int key) { return GetKeyState(key) < 0; }

/// Whether the key repeats itself because it is held down.
bool repeats(const MSG& message) { return message.lParam & (1 << 30); }

bool handleTab(NativeWindow& view) {
  if (isDown(VK_CONTROL) || isDown(VK_MENU)) return false;
  view.showFocus();
  view.model().moveFocus(!isDown(VK_SHIFT));
  return true;
}

bool handleArrow(NativeWindow& view, Control& control, bool forward) {
  if (control.kind() != Control::Kind::kOptionButton || !control.usable()) return false;
  view.showFocus();
  static_cast<OptionButton&>(control).moveSelection(forward);
  return true;
}

/// The part of the scroll bar that a key stands for, or none.
std::optional<WORD> scrollCodeOf(WPARAM key) {
  switch (key) {
    case VK_PRIOR:
      return SB_PAGEUP;
    case VK_NEXT:
      return SB_PAGEDOWN;
    case VK_HOME:
      return SB_TOP;
    case VK_END:
      return SB_BOTTOM;
    case VK_UP:
      return SB_LINEUP;
    case VK_DOWN:
      return SB_LINEDOWN;
    default:
      return std::nullopt;
  }
}

/// What the focused control has no use for scrolls a window that is too large for its screen.
bool handleScroll(const MSG& message, NativeWindow& view, const Control& control) {
  const auto code = scrollCodeOf(message.wParam);
  const bool page = message.wParam == VK_PRIOR || message.wParam == VK_NEXT;
  if (!code || (control.kind() == Control::Kind::kTextBox && !page)) return false;
  SendMessageW(view.handle(), WM_VSCROLL, *code, 0);
  return true;
}

bool handleEnter(const MSG& message, Control& control) {
  if (control.kind() != Control::Kind::kButton) return false;
  if (!repeats(message)) static_cast<Button&>(control).press();
  return true;
}

bool handleControlKey(const MSG& message, NativeWindow& view, Control& control) {
  switch (message.wParam) {
    case VK_RETURN:
      return handleEnter(message, control);
    case VK_DOWN:
    case VK_RIGHT:
      return handleArrow(view, control, true);
    case VK_UP:
    case VK_LEFT:
      return handleArrow(view, control, false);
    default:
      return false;
  }
}

}  // namespace

bool handleKey(const MSG& message) {
  if (message.message != WM_KEYDOWN) return false;
  NativeWindow* view = NativeWindow::of(message.hwnd);
  if (view == nullptr || view->closed()) return false;
  if (message.wParam == VK_TAB) return handleTab(*view);
  if (message.wParam == VK_ESCAPE) {
    // A key that is held since it closed a message box does not close the window beneath.
    if (view->model().closesOnEscape() && !repeats(message)) view->model().requestClose();
    return true;
  }
  NativeControl* control = NativeControl::of(message.hwnd);
  return control != nullptr && (handleControlKey(message, *view, control->model()) ||
                                handleScroll(message, *view, control->model()));
}

}  // namespace korventally::win32
