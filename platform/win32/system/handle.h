#pragma once

#include <windows.h>

#include <utility>

namespace korventally::win32 {

/// Owns a kernel handle. Holds none both for a null handle and for INVALID_HANDLE_VALUE, because
/// Windows' functions fail with either.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Handle() { (void)close(); }

  explicit operator bool() const { return handle_ != nullptr; }
  HANDLE get() const { return handle_; }

  /// Closes the handle now, for those who must know that it went well. False leaves the reason in
  /// GetLastError.
  [[nodiscard]] bool close() {
    HANDLE handle = std::exchange(handle_, nullptr);
    return handle == nullptr || CloseHandle(handle) != 0;
  }

 private:
  HANDLE handle_ = nullptr;
};

}  // namespace korventally::win32
