#include "platform/window_view.h"

#include <memory>

#include "platform/win32/ui/native_lookup.h"
#include "platform/win32/ui/native_window.h"

namespace korventally {

std::unique_ptr<WindowView> createWindowView(Window& window, Window* owner) {
  HWND ownerHandle = owner == nullptr ? nullptr : win32::nativeHandle(*owner);
  return std::make_unique<win32::NativeWindow>(window, ownerHandle);
}

}  // namespace korventally
