#pragma once

#include <string>
#include <utility>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// A push button.
class Button : public Control {
 public:
  /// kGraphical buttons show their background colour, standard ones never do.
  enum class Style { kStandard, kGraphical };

  Button(Container& container, Rect place, std::string caption, Font font = fonts::kDefault,
         Style style = Style::kStandard)
      : Control(Kind::kButton, &container, place, font), style_(style) {
    text_ = std::move(caption);
    backColor_ = colors::kButtonFace;
  }

  Style style() const { return style_; }

  /// The user presses the button. Does nothing on an unusable one.
  void press() {
    if (usable()) raise(onClick);
  }

 private:
  Style style_;
};

}  // namespace korventally
