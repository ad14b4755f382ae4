#pragma once

#include <string>
#include <utility>

#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// A box to tick.
class CheckBox : public Control {
 public:
  CheckBox(Container& container, Rect place, std::string caption = {}, bool checked = false,
           Font font = fonts::kDefault)
      : Control(Kind::kCheckBox, &container, place, font), checked_(checked) {
    text_ = std::move(caption);
  }

  bool checked() const { return checked_; }
  void setChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    changed(Aspect::kValue);
  }

  /// The user ticks or unticks the box. Does nothing on an unusable one.
  void press() {
    if (!usable()) return;
    setChecked(!checked_);
    raise(onClick);
  }

 private:
  bool checked_;
};

}  // namespace korventally
