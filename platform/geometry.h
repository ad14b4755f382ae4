#pragma once

namespace korventally {

/// Places and sizes are in twips: 1440 to the inch, 15 to the pixel at 96 dpi.
inline constexpr int kTwipsPerInch = 1440;

/// A place within the container, in twips.
struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Rect&, const Rect&) = default;
};

/// A size in twips.
struct Size {
  int width = 0;
  int height = 0;
};

}  // namespace korventally
