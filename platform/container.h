#pragma once

#include <vector>

#include "platform/control.h"

namespace korventally {

/// A control that holds others: a frame or the window itself. The controls are members of the form
/// that declares them; a container only knows them, in the order of their declaration.
class Container : public Control {
 public:
  const std::vector<Control*>& children() const { return children_; }

 protected:
  using Control::Control;

 private:
  friend class Control;
  void adopt(Control& child) { children_.push_back(&child); }

  std::vector<Control*> children_;
};

}  // namespace korventally
