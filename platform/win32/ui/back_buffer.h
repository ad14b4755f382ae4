#pragma once

#include <windows.h>

#include "platform/win32/ui/gdi.h"

namespace korventally::win32 {

/// Where a control is painted before it shows at once. All controls of a window share one, because
/// making it takes longer than painting on it.
class BackBuffer {
 public:
  BackBuffer() = default;
  BackBuffer(const BackBuffer&) = delete;
  BackBuffer& operator=(const BackBuffer&) = delete;
  ~BackBuffer();

  /// A device context that fits the screen's and is at least as large as asked for, with whatever
  /// was painted there last; none when Windows is out of them.
  HDC dc(HDC screen, SIZE size);

 private:
  bool grow(HDC screen, SIZE size);

  HDC dc_ = nullptr;
  HGDIOBJ own_ = nullptr;  ///< the bitmap that the device context came with
  GdiObject<HBITMAP> bitmap_;
  SIZE size_{};
};

}  // namespace korventally::win32
