#include "platform/win32/ui/native_control.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/geometry.h"
#include "platform/win32/system/text.h"
#include "platform/win32/ui/colors.h"
#include "platform/win32/ui/stage.h"
#include "platform/win32/ui/system_headers.h"
#include "platform/window.h"

namespace korventally::win32 {
namespace {

/// Who stands behind a window. A property of the window would do as well, but the system would be
/// asked for it with every message.
std::unordered_map<HWND, NativeControl*>& controlsByWindow() {
  static std::unordered_map<HWND, NativeControl*> controls;
  return controls;
}

struct Pixels {
  int left;
  int top;
  int width;
  int height;
};

/// A rule of the model has no thickness; on the screen it has one pixel, more on a fine screen.
Pixels inPixels(const Rect& place, const Stage& stage) {
  const int least = stage.scaled(1);
  return {stage.fromTwips(place.left), stage.fromTwips(place.top),
          std::max(stage.fromTwips(place.width), least),
          std::max(stage.fromTwips(place.height), least)};
}

bool asksForColor(UINT message) {
  return message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORBTN;
}

}  // namespace

NativeControl::NativeControl(Control& model, const Site& site, const wchar_t* windowClass,
                             DWORD style, DWORD extendedStyle, DWORD visible)
    : model_(model), stage_(site.stage) {
  style |= WS_CHILD;
  if (model.visible()) style |= visible;
  if (!model.enabled()) style |= WS_DISABLED;
  const Pixels at = inPixels(model.place(), stage_);
  handle_ = CreateWindowExW(extendedStyle, windowClass, toWide(model.text()).c_str(), style,
                            at.left, at.top, at.width, at.height, site.parent,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(site.id)),
                            GetModuleHandleW(nullptr), nullptr);
  takeFont();
}

void NativeControl::attach() {
  if (handle_ == nullptr) return;
  controlsByWindow()[handle_] = this;
  classProcedure_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
  attached();
}

void NativeControl::attached() {
  if (shown() != model_.visible()) refresh(Aspect::kVisible);
}

NativeControl* NativeControl::of(HWND window) {
  const auto found = controlsByWindow().find(window);
  return found == controlsByWindow().end() ? nullptr : found->second;
}

void NativeControl::place(POINT origin) {
  takeFont();
  const Pixels at = inPixels(model_.place(), stage_);
  SetWindowPos(handle_, nullptr, origin.x + at.left, origin.y + at.top, at.width, at.height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeControl::takeFont() {
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(stage_.font(model_.font())), FALSE);
}

void NativeControl::refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::kEnabled:
      EnableWindow(handle_, model_.enabled());
      lookChanged();
      break;
    case Aspect::kVisible:
      ShowWindow(handle_, shown() ? SW_SHOWNA : SW_HIDE);
      break;
    case Aspect::kText:
      SetWindowTextW(handle_, toWide(model_.text()).c_str());
      lookChanged();
      break;
    case Aspect::kBackColor:
      lookChanged();
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
  if (message == WM_GETOBJECT) SendMessageW(GetAncestor(handle_, GA_ROOT), kNamesWanted, 0, 0);
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
  return CallWindowProcW(classProcedure_, handle_, message, first, second);
}

LRESULT CALLBACK NativeControl::procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  NativeControl* const self = of(window);
  if (self == nullptr) return DefWindowProcW(window, message, first, second);
  if (message != WM_NCDESTROY) return self->onMessage(message, first, second);
  controlsByWindow().erase(window);
  return self->byDefault(message, first, second);
}

}  // namespace korventally::win32
