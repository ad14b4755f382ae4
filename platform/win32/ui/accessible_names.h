#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {

/// What assistive programs read of the controls beyond their captions. Without Windows' help
/// they read the captions alone. Windows' help is loaded when the first of them asks.
class AccessibleNames {
 public:
  AccessibleNames() = default;
  AccessibleNames(const AccessibleNames&) = delete;
  AccessibleNames& operator=(const AccessibleNames&) = delete;
  ~AccessibleNames();

  void add(HWND control, const std::string& name);
  /// An assistive program asks: Windows is told all names.
  void tell();
  /// Forgets all names. Called while the controls still exist.
  void clear();
  /// Has the control's text read out once, without the focus going there.
  void announce(HWND control);

 private:
  /// None where Windows does not help.
  IAccPropServices* services();

  IAccPropServices* services_ = nullptr;
  bool asked_ = false;  ///< whether Windows was asked for help
  std::vector<std::pair<HWND, std::string>> untold_;
  std::vector<HWND> named_;
};

}  // namespace korventally::win32
