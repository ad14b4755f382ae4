#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace korventally::win32 {

/// The tool tips of one window, which owns the window that shows them. That one is made when the
/// mouse first comes to a control with a tip.
class ToolTips {
 public:
  explicit ToolTips(HWND owner) : owner_(owner) {}
  void add(HWND control, const std::string& text);
  /// The mouse is over this window, a control or any other.
  void mouseOver(HWND any);

 private:
  HWND owner_;
  HWND handle_ = nullptr;
  std::map<HWND, std::string> waiting_;  ///< those that the mouse has not come to yet
};

}  // namespace korventally::win32
