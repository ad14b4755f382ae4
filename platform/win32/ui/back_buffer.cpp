#include "platform/win32/ui/back_buffer.h"

#include <algorithm>
#include <utility>

#include "platform/win32/ui/gdi.h"

namespace korventally::win32 {

BackBuffer::~BackBuffer() {
  if (dc_ == nullptr) return;
  if (own_ != nullptr) SelectObject(dc_, own_);
  DeleteDC(dc_);
}

HDC BackBuffer::dc(HDC screen, SIZE size) {
  if (dc_ == nullptr) dc_ = CreateCompatibleDC(screen);
  if (dc_ == nullptr) return nullptr;
  if (size.cx <= size_.cx && size.cy <= size_.cy) return dc_;
  return grow(screen, {std::max(size.cx, size_.cx), std::max(size.cy, size_.cy)}) ? dc_ : nullptr;
}

bool BackBuffer::grow(HDC screen, SIZE size) {
  GdiObject<HBITMAP> larger(CreateCompatibleBitmap(screen, size.cx, size.cy));
  if (!larger) return false;
  const HGDIOBJ before = SelectObject(dc_, larger.get());
  if (own_ == nullptr) own_ = before;
  bitmap_ = std::move(larger);
  size_ = size;
  return true;
}

}  // namespace korventally::win32
