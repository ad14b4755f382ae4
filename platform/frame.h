#pragma once

#include <string>
#include <utility>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// A group box that contains its controls: disabling it makes them all unusable. White ground, the
/// caption in the given colour; an empty caption leaves the border closed.
class Frame : public Container {
 public:
  Frame(Container& container, Rect place, std::string caption = {}, Font font = fonts::kBold,
        OleColor captionColor = colors::kWindowText)
      : Container(Kind::kFrame, &container, place, font) {
    text_ = std::move(caption);
    foreColor_ = captionColor;
  }
};

}  // namespace korventally
