#include "platform/win32/ui/clipboard.h"

#include <string>
#include <string_view>

namespace korventally::win32 {

std::wstring clipboardText(HWND window) {
  if (!OpenClipboard(window)) return {};
  std::wstring text;
  HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (const auto* content = static_cast<const wchar_t*>(memory ? GlobalLock(memory) : nullptr)) {
    // Another program may have forgotten the final null character.
    const std::wstring_view all(content, GlobalSize(memory) / sizeof(wchar_t));
    text = all.substr(0, all.find(L'\0'));
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

}  // namespace korventally::win32
