#pragma once

#include <memory>

#include "platform/control.h"

namespace korventally {

class Window;

/// An open window as a back end shows it. Reads the model and reports the user's doings to it, by
/// `press`, `edited`, `acceptsKey`, `Window::focusMovedTo`, `Window::requestClose` and the like.
class WindowView {
 public:
  virtual ~WindowView() = default;

  /// Shows one changed aspect of a control.
  virtual void refresh(const Control& control, Aspect aspect) = 0;
  /// Gives the control the keyboard and reports it. False when there is nothing to report, because
  /// another window is active or the keyboard is there already.
  virtual bool setFocus(const Control& control) = 0;
  /// Has assistive programs read out the control's text, once.
  virtual void announce(const Control& control) = 0;
  /// Takes the window off the screen and makes its owner usable again. The view itself lives on
  /// until the code that showed the window is done with it.
  virtual void close() = 0;
};

/// Shows a window; with an owner it is modal, and the owner takes no input until the view closes.
std::unique_ptr<WindowView> createWindowView(Window& window, Window* owner);

}  // namespace korventally
