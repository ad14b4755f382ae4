#pragma once

#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// The program's own pictures; the back end knows where each is stored.
enum class Picture { kIcon48, kAboutBanner, kLogo };

/// Shows one picture, centred in its place.
class PictureBox : public Control {
 public:
  PictureBox(Container& container, Rect place, Picture picture)
      : Control(Kind::kPictureBox, &container, place, fonts::kDefault), picture_(picture) {}

  Picture picture() const { return picture_; }

 private:
  Picture picture_;
};

}  // namespace korventally
