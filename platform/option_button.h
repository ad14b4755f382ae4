#pragma once

#include <string>

#include "platform/color.h"
#include "platform/container.h"
#include "platform/control.h"
#include "platform/font.h"
#include "platform/geometry.h"

namespace korventally {

/// One of several choices. The option buttons of one container exclude each other.
class OptionButton : public Control {
 public:
  OptionButton(Container& container, Rect place, std::string caption, bool selected = false,
               Font font = fonts::kDefault, OleColor color = colors::kWindowText);

  bool selected() const { return selected_; }
  /// Selects this option and deselects its siblings.
  void select();

  /// Whether Tab stops here for the whole group: at the selected option, or at the first usable one
  /// while the selected one cannot be used.
  bool standsForGroup() const;

  /// The user selects the option. Does nothing on an unusable one.
  void press();
  /// The user moves the selection with an arrow key: the next (or previous) usable option of the
  /// container, round its ends, is selected and takes the focus.
  void moveSelection(bool forward);

 private:
  void setSelected(bool selected);

  bool selected_;
};

}  // namespace korventally
