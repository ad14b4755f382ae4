#include "platform/win32/ui/tool_tips.h"

#include <string>

#include "platform/win32/system/text.h"
#include "platform/win32/ui/dpi.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

/// Pixels at 96 dpi. Longer texts wrap instead of running across the screen.
constexpr int kWidest = 400;

}  // namespace

ToolTips::ToolTips(HWND owner)
    : owner_(owner),
      handle_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, owner, nullptr,
                              GetModuleHandleW(nullptr), nullptr)) {
  SendMessageW(handle_, TTM_SETMAXTIPWIDTH, 0,
               MulDiv(kWidest, dpiOf(owner), USER_DEFAULT_SCREEN_DPI));
}

void ToolTips::add(HWND control, const std::string& text) {
  if (text.empty()) return;
  std::wstring wide = toWide(text);
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = owner_;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = wide.data();
  SendMessageW(handle_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace korventally::win32
