#pragma once

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// A horizontal or vertical rule; the place's width or height is 0 and the rule one pixel thick.
class Line : public Control {
 public:
  Line(Container& container, Rect place, OleColor color = colors::kLightGrey)
      : Control(Kind::kLine, &container, place, fonts::kDefault) {
    foreColor_ = color;
  }
};

}  // namespace korventally
