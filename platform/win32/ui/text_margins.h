#pragma once

#include <windows.h>

namespace korventally::win32 {

/// Windows puts the text of a box for a single line at its top edge, which is well above the
/// middle where the resolution is high. So the client area is made as high as the text and centred
/// in the box; what lies above and below it are margins, which Windows does not paint.
class TextMargins {
 public:
  /// For WM_NCCALCSIZE, after Windows' own answer: takes the margins from the client area.
  void takeFrom(RECT& client, HWND box);
  /// For WM_NCPAINT, after Windows has painted the border.
  void paint(HWND box, COLORREF ground) const;
  /// For WM_NCHITTEST: a margin belongs to the box as much as its text does.
  bool contain(HWND box, POINT onScreen) const;

 private:
  int above_ = 0;
  int below_ = 0;
};

}  // namespace korventally::win32
