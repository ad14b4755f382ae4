#pragma once

#include <windows.h>

#include <utility>

namespace korventally::win32 {

/// Owns a font, brush, pen or bitmap.
template <typename T>
class GdiObject {
 public:
  GdiObject() = default;
  explicit GdiObject(T object) : object_(object) {}
  GdiObject(GdiObject&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  GdiObject& operator=(GdiObject&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~GdiObject() {
    if (object_ != nullptr) DeleteObject(object_);
  }

  explicit operator bool() const { return object_ != nullptr; }
  T get() const { return object_; }

 private:
  T object_ = nullptr;
};

/// Leaves a device context as it was found.
class KeepDc {
 public:
  explicit KeepDc(HDC dc) : dc_(dc), saved_(SaveDC(dc)) {}
  KeepDc(const KeepDc&) = delete;
  KeepDc& operator=(const KeepDc&) = delete;
  ~KeepDc() { RestoreDC(dc_, saved_); }

 private:
  HDC dc_;
  int saved_;
};

inline void fill(HDC dc, const RECT& area, COLORREF color) {
  const COLORREF before = SetDCBrushColor(dc, color);
  FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  SetDCBrushColor(dc, before);
}

}  // namespace korventally::win32
