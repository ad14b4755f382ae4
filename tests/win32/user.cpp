#include "tests/user.h"

#include <windows.h>
// Needs the types of the header above.
#include <shlobj.h>

#include <map>

#include "driver/input.h"
#include "platform/events.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/native_lookup.h"

namespace korventally::testing {
namespace {

using win32::nativeHandle;

/// The system hands mouse and keyboard only to a window that is shown and enabled with all those
/// around it. A message that is sent there by a program passes all the same, so a user has to
/// look first.
bool inReach(HWND window) {
  for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
    if (at == GetDesktopWindow()) return true;
    if (!IsWindowEnabled(at) || !(GetWindowLongW(at, GWL_STYLE) & WS_VISIBLE)) return false;
  }
  return false;
}

/// Lets the windows handle what was posted, and what follows from it.
void settle() {
  processPendingEvents();
  processPendingEvents();
}

void post(HWND window, UINT message, WPARAM first, LPARAM second) {
  PostMessageW(window, message, first, second);
  settle();
}

/// Whether the user has got the focus there.
bool focusOn(HWND control) {
  if (!inReach(control)) return false;
  if (GetFocus() != control) SetFocus(control);
  settle();
  return inReach(control) && GetFocus() == control;
}

void pressKey(HWND control, WPARAM key) {
  post(control, WM_KEYDOWN, key, 1);
  if (IsWindow(control)) post(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void setShift(bool down) {
  BYTE keys[256];
  GetKeyboardState(keys);
  keys[VK_SHIFT] = down ? 0x80 : 0;
  SetKeyboardState(keys);
}

WPARAM codeOf(Key key) {
  static const std::map<Key, WPARAM> kCodes{{Key::kTab, VK_TAB},       {Key::kShiftTab, VK_TAB},
                                            {Key::kEnter, VK_RETURN},  {Key::kUp, VK_UP},
                                            {Key::kEscape, VK_ESCAPE}, {Key::kSpace, VK_SPACE},
                                            {Key::kDown, VK_DOWN},     {Key::kBackspace, VK_BACK},
                                            {Key::kLeft, VK_LEFT},     {Key::kRight, VK_RIGHT}};
  return kCodes.at(key);
}

/// Files as Explorer hands them over: a header, then the paths, each ended by a zero, then another.
HGLOBAL dropOf(const std::vector<std::string>& paths) {
  std::wstring list;
  for (const std::string& path : paths) list += win32::toWide(path) + L'\0';
  const std::size_t bytes = (list.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
  auto* header = static_cast<DROPFILES*>(GlobalLock(memory));
  header->pFiles = sizeof(DROPFILES);
  header->fWide = TRUE;
  list.copy(reinterpret_cast<wchar_t*>(header + 1), list.size());
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

void click(Control& control) {
  HWND window = nativeHandle(control);
  if (!inReach(window)) return;
  RECT area;
  GetClientRect(window, &area);
  const LPARAM centre = MAKELPARAM(area.right / 2, area.bottom / 2);
  post(window, WM_LBUTTONDOWN, MK_LBUTTON, centre);
  // A window that has gone out of reach gets no more of the mouse.
  if (inReach(window)) return post(window, WM_LBUTTONUP, 0, centre);
  if (GetCapture() == window) ReleaseCapture();
}

void type(TextBox& box, const std::string& text) {
  HWND edit = nativeHandle(box);
  if (!focusOn(edit)) return;
  const auto end = static_cast<WPARAM>(GetWindowTextLengthW(edit));
  SendMessageW(edit, EM_SETSEL, end, static_cast<LPARAM>(end));
  for (const wchar_t unit : win32::toWide(text)) {
    if (inReach(edit)) post(edit, WM_CHAR, unit, 1);
  }
}

void paste(TextBox& box, const std::string& text) {
  HWND edit = nativeHandle(box);
  if (!focusOn(edit)) return;
  SendMessageW(edit, EM_SETSEL, 0, -1);
  if (text.empty()) return post(edit, WM_CLEAR, 0, 0);
  driver::copyText(win32::toWide(text));
  post(edit, WM_PASTE, 0, 0);
}

void press(Window& window, Key key) {
  HWND focused = GetFocus();
  if (!inReach(nativeHandle(window)) || !IsChild(nativeHandle(window), focused)) return;
  setShift(key == Key::kShiftTab);
  pressKey(focused, codeOf(key));
  setShift(false);
}

void drop(Control& on, const std::vector<std::string>& paths) {
  const auto takes = [](HWND window) {
    return IsWindowEnabled(window) && (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
  };
  // Explorer looks for one that takes files no further than up to the window as a whole, and hands
  // them to that even while it lies under a modal one.
  HWND root = nativeHandle(on.window());
  HWND at = nativeHandle(on);
  while (at != root && !takes(at)) at = GetAncestor(at, GA_PARENT);
  if (!(GetWindowLongW(at, GWL_EXSTYLE) & WS_EX_ACCEPTFILES)) return;
  post(at, WM_DROPFILES, reinterpret_cast<WPARAM>(dropOf(paths)), 0);
}

void clickCloseBox(Window& window) {
  HWND handle = nativeHandle(window);
  if (inReach(handle)) post(handle, WM_SYSCOMMAND, SC_CLOSE, 0);
}

}  // namespace korventally::testing
