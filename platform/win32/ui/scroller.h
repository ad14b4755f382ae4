#pragma once

#include <windows.h>

namespace korventally::win32 {

/// Scrolls the controls of a window that is smaller than its contents.
class Scroller {
 public:
  explicit Scroller(HWND window) : window_(window) {}

  /// The contents as laid out from `offset()`, and the part of the window that shows them.
  void setSizes(SIZE contents, SIZE page);
  /// Where the contents' top-left corner is.
  POINT offset() const { return {-at_.x, -at_.y}; }
  /// Handles scroll bars and mouse wheel; says whether the message was one of theirs.
  bool handle(UINT message, WPARAM first);
  /// Brings a part, in the window's coordinates, into view.
  void reveal(const RECT& part);

 private:
  void scrollTo(POINT at);
  void turnBar(int bar, WORD code);
  POINT furthest() const;
  void showBar(int bar, LONG contents, LONG page, LONG at);

  HWND window_;
  SIZE contents_{};
  SIZE page_{};
  POINT at_{};
};

}  // namespace korventally::win32
