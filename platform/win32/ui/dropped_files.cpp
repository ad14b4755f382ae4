#include "platform/win32/ui/dropped_files.h"

#include <string>
#include <vector>

#include "platform/win32/system/text.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

std::string pathOf(HDROP drop, UINT file) {
  std::wstring path(DragQueryFileW(drop, file, nullptr, 0) + 1, L'\0');
  path.resize(DragQueryFileW(drop, file, path.data(), static_cast<UINT>(path.size())));
  return fromWide(path);
}

}  // namespace

void acceptFiles(HWND window, bool accept) {
  const LONG_PTR others = GetWindowLongPtrW(window, GWL_EXSTYLE) & ~LONG_PTR{WS_EX_ACCEPTFILES};
  SetWindowLongPtrW(window, GWL_EXSTYLE, others | (accept ? WS_EX_ACCEPTFILES : 0));
}

std::vector<std::string> takeDrop(HWND on, WPARAM drop) {
  constexpr UINT kHowMany = 0xFFFFFFFF;
  HWND root = GetAncestor(on, GA_ROOT);
  auto* const files = reinterpret_cast<HDROP>(drop);
  std::vector<std::string> paths;
  if (IsWindowEnabled(root)) {
    const UINT count = DragQueryFileW(files, kHowMany, nullptr, 0);
    for (UINT file = 0; file < count; ++file) paths.push_back(pathOf(files, file));
    SetForegroundWindow(root);
  }
  DragFinish(files);
  return paths;
}

}  // namespace korventally::win32
