#include "platform/win32/ui/tool_tips.h"

#include <string>

#include "platform/win32/system/text.h"
#include "platform/win32/ui/dpi.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

/// Pixels at 96 dpi. Longer texts wrap instead of running across the screen.
constexpr int kWidest = 400;

HWND makeTipWindow(HWND owner) {
  HWND window = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, owner, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
  SendMessageW(window, TTM_SETMAXTIPWIDTH, 0,
               MulDiv(kWidest, dpiOf(owner), USER_DEFAULT_SCREEN_DPI));
  return window;
}

}  // namespace

void ToolTips::add(HWND control, const std::string& text) {
  if (!text.empty()) waiting_[control] = text;
}

void ToolTips::mouseOver(HWND any) {
  const auto found = waiting_.find(any);
  if (found == waiting_.end()) return;
  if (handle_ == nullptr) handle_ = makeTipWindow(owner_);
  std::wstring wide = toWide(found->second);
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = owner_;
  tool.uId = reinterpret_cast<UINT_PTR>(any);
  tool.lpszText = wide.data();
  SendMessageW(handle_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  waiting_.erase(found);
}

}  // namespace korventally::win32
