#include "platform/win32/ui/native_control.h"

#include <optional>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/geometry.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/window.h"

namespace korventally::win32 {
namespace {

constexpr UINT_PTR kSubclass = 1;
/// The property of a window that leads to its NativeControl.
constexpr wchar_t kProperty[] = L"KorvenTallyControl";

bool asksForColor(UINT message) {
  return message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORBTN;
}

}  // namespace

NativeControl::NativeControl(Control& model, const Site& site, const wchar_t* windowClass,
                             DWORD style, DWORD extendedStyle)
    : model_(model), stage_(site.stage) {
  style |= WS_CHILD;
  if (model.visible()) style |= WS_VISIBLE;
  if (!model.enabled()) style |= WS_DISABLED;
  handle_ = CreateWindowExW(
      extendedStyle, windowClass, toWide(model.text()).c_str(), style, 0, 0, 0, 0, site.parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(site.id)), GetModuleHandleW(nullptr), nullptr);
}

void NativeControl::attach() {
  SetWindowSubclass(handle_, procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  SetPropW(handle_, kProperty, this);
  refresh(Aspect::kValue);
  refresh(Aspect::kVisible);
}

NativeControl* NativeControl::of(HWND window) {
  return static_cast<NativeControl*>(GetPropW(window, kProperty));
}

void NativeControl::place(POINT origin) {
  const Rect& at = model_.place();
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(stage_.font(model_.font())), FALSE);
  SetWindowPos(handle_, nullptr, origin.x + stage_.fromTwips(at.left),
               origin.y + stage_.fromTwips(at.top), stage_.fromTwips(at.width),
               stage_.fromTwips(at.height), SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeControl::refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::kEnabled:
      EnableWindow(handle_, model_.enabled());
      RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
      break;
    case Aspect::kVisible:
      ShowWindow(handle_, shown() ? SW_SHOWNA : SW_HIDE);
      break;
    case Aspect::kText:
      SetWindowTextW(handle_, toWide(model_.text()).c_str());
      invalidate();
      break;
    case Aspect::kBackColor:
      invalidate();
      break;
    case Aspect::kValue:
    case Aspect::kSelection:
    case Aspect::kTakesFiles:
      break;
  }
}

std::optional<LRESULT> NativeControl::reflect(UINT message, WPARAM first, LPARAM second) {
  if (message == WM_NOTIFY) {
    const auto& header = *reinterpret_cast<const NMHDR*>(second);
    NativeControl* sender = of(header.hwndFrom);
    return sender ? sender->notify(header) : std::nullopt;
  }
  if (message != WM_COMMAND && !asksForColor(message)) return std::nullopt;
  NativeControl* sender = of(reinterpret_cast<HWND>(second));
  if (sender == nullptr) return std::nullopt;
  if (message != WM_COMMAND) {
    return reinterpret_cast<LRESULT>(sender->color(reinterpret_cast<HDC>(first)));
  }
  if (!sender->stage_.closed()) sender->command(HIWORD(first));
  return 0;
}

HBRUSH NativeControl::color(HDC dc) {
  const OleColor ground = model_.kind() == Control::Kind::kTextBox
                              ? model_.backColor()
                              : model_.container()->backColor();
  return applyColors(dc, textColor(model_.foreColor(), ground, model_.usable()),
                     groundColor(ground));
}

LRESULT NativeControl::onMessage(UINT message, WPARAM first, LPARAM second) {
  const LRESULT answer = byDefault(message, first, second);
  if (message == WM_SETFOCUS) focusArrived();
  return answer;
}

void NativeControl::focusArrived() {
  if (stage_.closed()) return;
  SendMessageW(GetAncestor(handle_, GA_ROOT), kFocusArrived, 0, reinterpret_cast<LPARAM>(handle_));
  Window& window = model_.window();
  window.focusMovedTo(model_);
  window.settleFocus();
}

LRESULT NativeControl::byDefault(UINT message, WPARAM first, LPARAM second) {
  return DefSubclassProc(handle_, message, first, second);
}

LRESULT CALLBACK NativeControl::procedure(HWND window, UINT message, WPARAM first, LPARAM second,
                                          UINT_PTR id, DWORD_PTR self) {
  if (message == WM_NCDESTROY) {
    RemovePropW(window, kProperty);
    RemoveWindowSubclass(window, procedure, id);
    return DefSubclassProc(window, message, first, second);
  }
  return reinterpret_cast<NativeControl*>(self)->onMessage(message, first, second);
}

}  // namespace korventally::win32
