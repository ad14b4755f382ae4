#pragma once

#include <string>
#include <vector>

#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {

/// What assistive programs read of the controls beyond their captions. Without Windows' help
/// they read the captions alone.
class AccessibleNames {
 public:
  AccessibleNames();
  AccessibleNames(const AccessibleNames&) = delete;
  AccessibleNames& operator=(const AccessibleNames&) = delete;
  ~AccessibleNames();

  void add(HWND control, const std::string& name);
  /// Forgets all names. Called while the controls still exist.
  void clear();
  /// Has the control's text read out once, without the focus going there.
  void announce(HWND control);

 private:
  IAccPropServices* services_ = nullptr;
  std::vector<HWND> named_;
};

}  // namespace korventally::win32
