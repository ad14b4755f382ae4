#pragma once

#include <string>
#include <utility>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

enum class Align { kLeft, kRight, kCentre };

/// Static text, wrapped at its width.
class Label : public Control {
 public:
  Label(Container& container, Rect place, std::string caption = {}, Align align = Align::kLeft,
        Font font = fonts::kDefault, OleColor color = colors::kWindowText)
      : Control(Kind::kLabel, &container, place, font), align_(align) {
    text_ = std::move(caption);
    foreColor_ = color;
  }

  Align align() const { return align_; }

 private:
  Align align_;
};

}  // namespace korventally
