#pragma once

#include <string>

#include "platform/window.h"

namespace korventally {

class WizardStep;

/// The wizard's window as its steps know it.
class StepHost : public Window {
 public:
  using Window::Window;

  /// Closes the step and opens the one after it, or before it.
  virtual void goForwardFrom(WizardStep& step) = 0;
  virtual void goBackFrom(WizardStep& step) = 0;

  /// Shows the open-file dialog, starting in the working directory. Returns the chosen file's full
  /// path, or the empty text when it was cancelled.
  virtual const std::string& askForFile(const std::string& filter) = 0;
};

}  // namespace korventally
