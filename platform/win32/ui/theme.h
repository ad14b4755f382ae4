#pragma once

#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {

/// The visual style of buttons at one resolution; empty where there is none.
class ButtonTheme {
 public:
  explicit ButtonTheme(int dpi);
  ButtonTheme(const ButtonTheme&) = delete;
  ButtonTheme& operator=(const ButtonTheme&) = delete;
  ~ButtonTheme();

  explicit operator bool() const { return theme_ != nullptr; }
  void draw(HDC dc, int part, int state, const RECT& area) const;
  /// Where the contents of a part go.
  RECT content(HDC dc, int part, int state, const RECT& area) const;
  SIZE size(HDC dc, int part, int state) const;

 private:
  HTHEME theme_;
};

}  // namespace korventally::win32
