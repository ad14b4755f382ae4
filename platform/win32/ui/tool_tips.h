#pragma once

#include <windows.h>

#include <string>

namespace korventally::win32 {

/// The tool tips of one window, which owns the window that shows them.
class ToolTips {
 public:
  explicit ToolTips(HWND owner);
  void add(HWND control, const std::string& text);

 private:
  HWND owner_;
  HWND handle_;
};

}  // namespace korventally::win32
