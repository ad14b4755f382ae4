#pragma once

#include <span>
#include <string_view>

#include "driver/forms.h"

namespace korventally::driver {

/// What a control of the wizard shows when the program starts; the driver knows its place.
struct Expected {
  std::string_view name;
  std::wstring_view text;
  bool usable = false;
  bool checked = false;
  int limit = 0;  ///< characters that can be typed; 0 for any number
};
extern const std::span<const Expected> kExpectedControls;

/// The rest of the wizard, which nobody can press or fill.
struct ExpectedThere {
  Sketch sketch;
  std::wstring_view text;
  bool usable = false;
};
extern const std::span<const ExpectedThere> kExpectedThere;

/// The About window.
extern const std::span<const Sketch> kAbout;

}  // namespace korventally::driver
